#pragma once

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Finding.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

/// What InspectDocument does, for a value of any source.
std::vector<Finding> InspectValue(Common::Serialization::Json::Details::ValueView document, DocumentKind kind,
                                  std::size_t maximum);

/// What KindOf does.
std::optional<DocumentKind> KindOfValue(Common::Serialization::Json::Details::ValueView document) noexcept;

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
