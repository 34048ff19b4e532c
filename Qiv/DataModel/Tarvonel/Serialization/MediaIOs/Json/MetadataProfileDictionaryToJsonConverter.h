#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Writes a channel's metadata as one flat object, in the form that `JsonToMetadataProfileDictionaryConverter` reads:
/// profiles in ascending order of their names, keys in ascending order. Profiles of an unknown kind and null pointers
/// are left out. Always succeeds.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT MetadataProfileDictionaryToJsonConverter
    : public ToJsonConverter<BusinessEntityModel::BaseTypes::MetadataProfileDictionary>
{
public:
    ~MetadataProfileDictionaryToJsonConverter() override;

    using ToJsonConverter::To;
    Result To(const BusinessEntityModel::BaseTypes::MetadataProfileDictionary& dictionary,
              Stringer& stringer) const override;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
