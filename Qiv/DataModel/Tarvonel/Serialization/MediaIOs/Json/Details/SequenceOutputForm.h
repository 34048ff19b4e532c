#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// The state of the sequence that a player plays.
struct SequenceOutputForm : JsonForm<SequenceOutputForm>
{
    static constexpr std::string_view tag = "SequenceOutput";
    static constexpr const char* emptyMessage = "SequenceOutput is empty";

    static constexpr Member sequenceOnAir{"sequenceOnAir", JsonType::Object};
    static constexpr Member assetBlockOnAir{"assetBlockOnAir", JsonType::Object};
    static constexpr Member nextAssetBlockOnAir{"nextAssetBlockOnAir", JsonType::Object};
    static constexpr Member editMode{"editMode", JsonType::Boolean};

    static constexpr auto members = ListOf(type, sequenceOnAir, assetBlockOnAir, nextAssetBlockOnAir, editMode);
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
