#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// A block of the sequence that a player plays.
struct AssetBlockForm : JsonForm<AssetBlockForm>
{
    static constexpr std::string_view tag = "AssetBlockOnAir";

    static constexpr Member id{"id", JsonType::Text};
    static constexpr Member mediaAsset{"mediaAsset", JsonType::Object};

    static constexpr auto members = ListOf(type, id, mediaAsset);
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
