#pragma once

#include <Qiv/Common/Serialization/Json/FromJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

/// Reads a media asset:
/// `{"_type":"MediaAsset","id":"a1","name":"Goal","inPoint":{time point},"outPoint":{time point}}`.
///
/// Every member is optional and merged into the asset. Failures: "MediaAsset is empty" and
/// "Invalid type X : MediaAsset expected", which leave the asset untouched; the text of `JsonToTimePointConverter` when
/// a time point object is refused, with the members before it applied.
class QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT JsonToMediaAssetConverter
    : public Common::Serialization::Json::FromJsonConverter<MediaAsset>
{
public:
    ~JsonToMediaAssetConverter() override;

    using FromJsonConverter::To;
    Common::Serialization::Result To(const Common::Serialization::Json::JsonObject& json,
                                     MediaAsset& mediaAsset) const override;
};

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
