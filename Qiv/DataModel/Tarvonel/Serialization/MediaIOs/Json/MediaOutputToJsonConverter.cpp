#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaOutputToJsonConverter.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/BoundaryToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelWriting.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SequenceOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SpeedToJsonConverter.h>

#include <memory>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Common::Serialization::Json::AppendNanosecondsObject;
using Details::AppendUnlessEmpty;
using MediaAssets::TimecodePrimary;
using MediaAssets::Serialization::Json::TimePointToJsonObjectConverter;
using Tarvonel::MediaIOs::MediaOutput;
using Tarvonel::MediaIOs::PlayingLoopMode;
using TimePoints::TimePoint;

MediaOutputToJsonConverter::MediaOutputToJsonConverter() : MediaOutputToJsonConverter(nullptr) {}

MediaOutputToJsonConverter::MediaOutputToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(timepointConverter ? std::move(timepointConverter)
                                             : std::make_shared<TimePointToJsonObjectConverter>())
{
}

MediaOutputToJsonConverter::~MediaOutputToJsonConverter() = default;

Result MediaOutputToJsonConverter::To(const MediaOutput& channel, Stringer& stringer) const noexcept
{
    stringer.Object();
    auto result = AppendMediaOutput(stringer, channel);
    stringer.CloseObject();
    return result;
}

// The results of the nested writers below, except that of the common members, are not looked at on purpose: the channel
// goes out with whatever they wrote.
Result MediaOutputToJsonConverter::AppendMediaOutput(Stringer& stringer, const MediaOutput& channel) const noexcept
{
    stringer.Member("_type", "MediaOutput");

    // One for the process, which keeps the time point writer of whoever comes first. Never destroyed, so that channels
    // can still be written while the process ends.
    static const auto& mediaIOConverter = *new MediaIOToJsonConverter(timepointConverter_);
    if (auto result = mediaIOConverter.AppendMediaIO(channel, stringer); !result)
        return result;

    stringer.Member("playingStatus", ToString(channel.PlayingStatus()).c_str());

    if (channel.SpeedOnAir().Denominator() != 0)
    {
        stringer.Key("speedOnAir");
        static_cast<void>(SpeedToJsonConverter().To(channel.SpeedOnAir(), stringer));
    }

    if (channel.GlobalLoopMode() != PlayingLoopMode::Unknown)
        stringer.Member("globalLoopMode", ToString(channel.GlobalLoopMode()).c_str());

    AppendUnlessEmpty(stringer, "remainingTime", channel.RemainingTime());

    if (channel.CurrentTimePointOnAir() != TimePoint::Empty())
    {
        // Always in this form, whatever time point writer this converter holds.
        stringer.Key("currentTimePointOnAir");
        AppendNanosecondsObject(stringer, "TimePoint", channel.CurrentTimePointOnAir().Nanoseconds());
    }

    AppendUnlessEmpty(stringer, "todTimecodeOnAir", channel.TodTimecodeOnAir());
    AppendUnlessEmpty(stringer, "userTimecodeOnAir", channel.UserTimecodeOnAir());

    if (channel.PrimaryTimecodeType() != TimecodePrimary::NotSet)
        stringer.Member("primaryTimecodeType", ToString(channel.PrimaryTimecodeType()).c_str());

    if (channel.Sequence().HasValue())
    {
        stringer.Key("sequence");
        static_cast<void>(SequenceOutputToJsonConverter(timepointConverter_).To(*channel.Sequence(), stringer));
    }

    if (!channel.InBoundary()->IsEmpty())
    {
        stringer.Key("inBoundary");
        static_cast<void>(BoundaryToJsonConverter(timepointConverter_).To(*channel.InBoundary(), stringer));
    }

    if (!channel.OutBoundary()->IsEmpty())
    {
        // With a time point writer of its own, unlike the in boundary; receivers expect the default form here.
        stringer.Key("outBoundary");
        static_cast<void>(BoundaryToJsonConverter().To(*channel.OutBoundary(), stringer));
    }

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
