#pragma once

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
{

/// What JsonToMediaAssetConverter does.
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result
ReadMediaAsset(Common::Serialization::Json::Details::ValueView json, MediaAsset& mediaAsset);

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
