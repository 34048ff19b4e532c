#pragma once

#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Export.h>
#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>

namespace Qiv::BusinessEntityModel::Edits::Serialization::Json::Details
{

/// What JsonToSequenceConverter does.
QIV_BUSINESSENTITYMODEL_EDITS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result
ReadSequence(Common::Serialization::Json::Details::ValueView json, Sequence& sequence);

} // namespace Qiv::BusinessEntityModel::Edits::Serialization::Json::Details
