#pragma once

#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <array>
#include <optional>
#include <string_view>

/// What the readers of channels share. The members of a channel object are found once, in one walk, and then applied by
/// each reader in its own order.
namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

/// The keys of channel objects of both kinds. "locationOnAir" is missing on purpose: it is reserved, and ignored.
struct ChannelKeys
{
    enum class Index
    {
        Type,
        CurrentTimePointOnAir,
        GlobalLoopMode,
        Id,
        InBoundary,
        LastTimePoint,
        LastTodTimecode,
        LastUserTimecode,
        MediaAssetOnAir,
        Metadata,
        Name,
        OutBoundary,
        PlayingStatus,
        PrimaryTimecodeType,
        RecordingStatus,
        RemainingCapacity,
        RemainingTime,
        Sequence,
        SpeedOnAir,
        TodTimecodeOnAir,
        TotalCapacity,
        UserTimecodeOnAir
    };
    static constexpr std::array<std::string_view, 22> names{"_type",
                                                            "currentTimePointOnAir",
                                                            "globalLoopMode",
                                                            "id",
                                                            "inBoundary",
                                                            "lastTimePoint",
                                                            "lastTodTimecode",
                                                            "lastUserTimecode",
                                                            "mediaAssetOnAir",
                                                            "metadata",
                                                            "name",
                                                            "outBoundary",
                                                            "playingStatus",
                                                            "primaryTimecodeType",
                                                            "recordingStatus",
                                                            "remainingCapacity",
                                                            "remainingTime",
                                                            "sequence",
                                                            "speedOnAir",
                                                            "todTimecodeOnAir",
                                                            "totalCapacity",
                                                            "userTimecodeOnAir"};
};

using ChannelKey = ChannelKeys::Index;
using ChannelMembers = Common::Serialization::Json::KnownMembers<ChannelKeys>;

/// The time code of a text member; nothing when the member is absent, no text, or no valid time code.
std::optional<TimePoints::TimeCode> TimeCodeOf(const ChannelMembers& members, ChannelKey key) noexcept;

/// The duration of a member `{"_type":"Duration","value":"<nanoseconds>"}`; nothing when it has another form.
std::optional<TimePoints::Duration> DurationOf(const ChannelMembers& members, ChannelKey key) noexcept;

// The work of the readers' Append operations, each beside the reader of that name.
Common::Serialization::Result AppendCommon(const ChannelMembers& members, Tarvonel::MediaIOs::MediaIO& channel);
Common::Serialization::Result AppendInput(const ChannelMembers& members,
                                          Tarvonel::MediaIOs::MediaInput& channel) noexcept;
Common::Serialization::Result AppendOutput(const ChannelMembers& members,
                                           Tarvonel::MediaIOs::MediaOutput& channel) noexcept;

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
