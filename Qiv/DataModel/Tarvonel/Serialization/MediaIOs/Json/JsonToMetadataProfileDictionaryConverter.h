#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Reads a channel's metadata from one flat object, `{"studio.camera.angle":"wide","qiv.peloperator.index":1}`.
///
/// A member with a text is a key of the generic profile that is named by what stands before its last dot: above, key
/// "angle" of the profile "studio.camera". Members without a dot or with another type are skipped, and so are all whose
/// namespace begins with "qiv.peloperator", which is reserved to the operator profile (see
/// `JsonToPelOperatorMetaDataConverter`). Adds to the dictionary and changes it, never removes anything.
///
/// Always succeeds, also for a value that is no object. Throws `std::bad_cast` when the dictionary already holds a
/// profile of the wrong kind for its name, which no document can bring about; what was read before stays. An entry with
/// a null pointer counts as an absent one.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT JsonToMetadataProfileDictionaryConverter
    : public FromJsonConverter<BusinessEntityModel::BaseTypes::MetadataProfileDictionary>
{
public:
    ~JsonToMetadataProfileDictionaryConverter() override;

    using FromJsonConverter::To;
    Result To(const JsonObject& json,
              BusinessEntityModel::BaseTypes::MetadataProfileDictionary& dictionary) const override;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
