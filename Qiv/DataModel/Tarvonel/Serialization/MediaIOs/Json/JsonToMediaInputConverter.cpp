#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaInputConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToTimePointConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelReading.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace Common::Serialization::Json;
using Details::ChannelKey;
using Details::ChannelMembers;
using MediaAssets::TimecodePrimary;
using MediaAssets::Serialization::Json::JsonToTimePointConverter;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::RecordingStatus;
using Tarvonel::MediaIOs::To;
using TimePoints::TimePoint;

JsonToMediaInputConverter::~JsonToMediaInputConverter() = default;

Result JsonToMediaInputConverter::To(const JsonObject& json, MediaInput& channel) const noexcept
{
    const ChannelMembers members(json);
    if (members.IsEmpty())
        return "MediaInput is empty";
    if (auto result = CheckType(members.Text(ChannelKey::Type), "MediaInput"); !result)
        return result;
    if (auto result = Details::AppendCommon(members, channel); !result)
        return result;
    return Details::AppendInput(members, channel);
}

Result JsonToMediaInputConverter::Append(const JsonObject& json, MediaInput& channel) const noexcept
{
    return Details::AppendInput(ChannelMembers(json), channel);
}

Result Details::AppendInput(const ChannelMembers& members, MediaInput& channel) noexcept
{
    if (const auto text = members.Text(ChannelKey::RecordingStatus))
        channel.RecordingStatus(To<RecordingStatus>(*text));

    if (const auto* lastTimePoint = members.Any(ChannelKey::LastTimePoint))
    {
        // Never destroyed, so that channels can still be read while the process ends.
        static const auto& timePointConverter = *new JsonToTimePointConverter;
        TimePoint timePoint;
        if (auto result = timePointConverter.To(*lastTimePoint, timePoint); !result)
            return result;
        channel.LastTimePoint(timePoint);
    }

    if (const auto timeCode = TimeCodeOf(members, ChannelKey::LastTodTimecode))
        channel.LastTodTimecode(*timeCode);

    if (const auto timeCode = TimeCodeOf(members, ChannelKey::LastUserTimecode))
        channel.LastUserTimecode(*timeCode);

    if (const auto text = members.Text(ChannelKey::PrimaryTimecodeType))
        channel.PrimaryTimecodeType(To<TimecodePrimary>(*text));

    // The remaining capacity before the total: the setters adjust each other, and so both end as given.
    if (auto duration = DurationOf(members, ChannelKey::RemainingCapacity))
        channel.RemainingCapacity(*duration);

    if (const auto duration = DurationOf(members, ChannelKey::TotalCapacity))
        channel.TotalCapacity(*duration);

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
