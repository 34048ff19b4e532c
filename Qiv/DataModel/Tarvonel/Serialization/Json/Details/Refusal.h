#pragma once

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadOptions.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextResult.h>

#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

/// The failure of a document that the options refuse, which is to be read as this kind; a success when they do not.
/// Puts the findings where the options ask for them. `text` is what the document was parsed from, or empty.
TextResult RefusalOf(Common::Serialization::Json::Details::ValueView json, DocumentKind kind,
                     const ReadOptions& options, std::string_view text);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
