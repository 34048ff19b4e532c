#pragma once

#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Export.h>
#include <Qiv/Common/Serialization/Json/ToJsonConverter.h>

namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
{

/// Writes an edit sequence, in the form that `JsonToSequenceConverter` reads: "_type" and "id" always, "name" unless it
/// is empty. Always succeeds.
class QIV_BUSINESSENTITYMODEL_EDITS_SERIALIZATION_JSON_EXPORT SequenceToJsonConverter
    : public Common::Serialization::Json::ToJsonConverter<Sequence>
{
public:
    ~SequenceToJsonConverter() override;

    using ToJsonConverter::To;
    Common::Serialization::Result To(const Sequence& sequence,
                                     Common::Serialization::Json::Stringer& stringer) const override;
};

} // namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
