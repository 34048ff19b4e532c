#pragma once

#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReferenceMembers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::JsonType;
using MediaAssets::Serialization::Json::Details::ReferenceMembers;

/// A reference to a media asset.
struct MediaAssetReferenceForm : ReferenceMembers<MediaAssetReferenceForm>
{
    static constexpr std::string_view tag = "MediaAssetRef";

    static constexpr Member embedded{"mediaAsset", JsonType::Object};

    static constexpr auto members = ListOf(type, id, embedded);
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
