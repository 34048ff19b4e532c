#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// A media asset.
struct MediaAssetForm : JsonForm<MediaAssetForm>
{
    static constexpr std::string_view tag = "MediaAsset";
    static constexpr const char* emptyMessage = "MediaAsset is empty";

    static constexpr Member id{"id", JsonType::Text};
    static constexpr Member name{"name", JsonType::Text};
    static constexpr Member inPoint{"inPoint", JsonType::Object};
    static constexpr Member outPoint{"outPoint", JsonType::Object};

    static constexpr auto members = ListOf(type, id, name, inPoint, outPoint);
};

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
