#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToMediaAssetConverter.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadMediaAsset.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

JsonToMediaAssetConverter::~JsonToMediaAssetConverter() = default;

Common::Serialization::Result JsonToMediaAssetConverter::To(const Common::Serialization::Json::JsonObject& json,
                                                            MediaAsset& mediaAsset) const
{
    return Details::ReadMediaAsset(json, mediaAsset);
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
