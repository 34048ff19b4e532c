#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMetadataProfileDictionaryConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using BusinessEntityModel::BaseTypes::MetadataProfileDictionary;

JsonToMetadataProfileDictionaryConverter::~JsonToMetadataProfileDictionaryConverter() = default;

Result JsonToMetadataProfileDictionaryConverter::To(const JsonObject& json, MetadataProfileDictionary& dictionary) const
{
    return Details::ReadMetadata(json, dictionary);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
