#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToPelOperatorMetaDataConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

JsonToPelOperatorMetaDataConverter::~JsonToPelOperatorMetaDataConverter() = default;

Result JsonToPelOperatorMetaDataConverter::To(const JsonObject& json, PelOperatorMetadataProfile& profile) const
{
    return Details::ReadOperatorProfile(json, profile);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
