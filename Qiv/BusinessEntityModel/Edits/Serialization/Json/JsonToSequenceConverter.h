#pragma once

#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Export.h>
#include <Qiv/Common/Serialization/Json/FromJsonConverter.h>

namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
{

/// Reads an edit sequence: `{"_type":"Sequence","id":"s1","name":"Highlights"}`. Every member is optional and merged
/// into the sequence. Failures, which leave it untouched: "Sequence is empty", "Invalid type X : Sequence expected".
class QIV_BUSINESSENTITYMODEL_EDITS_SERIALIZATION_JSON_EXPORT JsonToSequenceConverter
    : public Common::Serialization::Json::FromJsonConverter<Sequence>
{
public:
    ~JsonToSequenceConverter() override;

    using FromJsonConverter::To;
    Common::Serialization::Result To(const Common::Serialization::Json::JsonObject& json,
                                     Sequence& sequence) const override;
};

} // namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
