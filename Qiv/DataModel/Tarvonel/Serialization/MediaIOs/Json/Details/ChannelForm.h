#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>

#include <string>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// A channel of either kind.
struct ChannelForm : JsonForm<ChannelForm>
{
    static constexpr std::string_view recorderTag = "MediaInput";
    static constexpr std::string_view playerTag = "MediaOutput";
    static constexpr const char* emptyMessage = "MediaIO is empty";
    static constexpr const char* emptyRecorderMessage = "MediaInput is empty";
    static constexpr const char* emptyPlayerMessage = "MediaOutput is empty";
    static constexpr const char* undefinedTypeMessage = "Invalid JSON type (undefined)";
    /// The failures of a "_type" that names the other kind, and of one that names none.
    static std::string InconsistentTypes(std::string_view source, std::string_view target);
    static std::string UnknownType(std::string_view type);

    static constexpr Member id{"id", JsonType::Text};
    static constexpr Member name{"name", JsonType::Text};
    static constexpr Member mediaAssetOnAir{"mediaAssetOnAir", JsonType::Object};
    static constexpr Member metadata{"metadata", JsonType::Object};
    static constexpr auto common = ListOf(id, name, mediaAssetOnAir, metadata);

    static constexpr Member primaryTimecodeType{"primaryTimecodeType", JsonType::Text};
    static constexpr auto ofEitherKind = ListOf(primaryTimecodeType);

    static constexpr Member recordingStatus{"recordingStatus", JsonType::Text};
    static constexpr Member lastTimePoint{"lastTimePoint", JsonType::Any};
    static constexpr Member lastTodTimecode{"lastTodTimecode", JsonType::Text};
    static constexpr Member lastUserTimecode{"lastUserTimecode", JsonType::Text};
    static constexpr Member remainingCapacity{"remainingCapacity", JsonType::Object};
    static constexpr Member totalCapacity{"totalCapacity", JsonType::Object};
    static constexpr auto recorder =
        ListOf(recordingStatus, lastTimePoint, lastTodTimecode, lastUserTimecode, remainingCapacity, totalCapacity);

    static constexpr Member playingStatus{"playingStatus", JsonType::Text};
    static constexpr Member speedOnAir{"speedOnAir", JsonType::Object};
    static constexpr Member globalLoopMode{"globalLoopMode", JsonType::Text};
    static constexpr Member remainingTime{"remainingTime", JsonType::Object};
    static constexpr Member sequence{"sequence", JsonType::Object};
    static constexpr Member currentTimePointOnAir{"currentTimePointOnAir", JsonType::Object};
    static constexpr Member todTimecodeOnAir{"todTimecodeOnAir", JsonType::Text};
    static constexpr Member userTimecodeOnAir{"userTimecodeOnAir", JsonType::Text};
    static constexpr Member inBoundary{"inBoundary", JsonType::Object};
    static constexpr Member outBoundary{"outBoundary", JsonType::Object};
    static constexpr Member locationOnAir{"locationOnAir", JsonType::Any}; // reserved: no reader asks for it
    static constexpr auto player =
        ListOf(playingStatus, speedOnAir, globalLoopMode, remainingTime, sequence, currentTimePointOnAir,
               todTimecodeOnAir, userTimecodeOnAir, inBoundary, outBoundary, locationOnAir);

    static constexpr auto members = Joined(ListOf(type), common, ofEitherKind, recorder, player);
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
