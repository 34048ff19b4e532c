#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaOutputToJsonConverter.h>

#include <Qiv/Common/Serialization/Json/Details/TimePointForm.h>
#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SequenceOutputToJsonConverter.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Common::Serialization::Json::AppendNanosecondsObject;
using Common::Serialization::Json::Details::keyOf;
using Common::Serialization::Json::Details::TimePointForm;
using MediaAssets::TimecodePrimary;
using MediaAssets::Serialization::Json::TimePointToJsonObjectConverter;
using Tarvonel::MediaIOs::MediaOutput;
using Tarvonel::MediaIOs::PlayingLoopMode;
using TimePoints::TimePoint;
using Form = Details::ChannelForm;

MediaOutputToJsonConverter::MediaOutputToJsonConverter() : MediaOutputToJsonConverter(nullptr) {}

MediaOutputToJsonConverter::MediaOutputToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(Details::OrDefault(std::move(timepointConverter)))
{
}

MediaOutputToJsonConverter::~MediaOutputToJsonConverter() = default;

Result MediaOutputToJsonConverter::To(const MediaOutput& channel, Stringer& stringer) const noexcept
{
    const auto object = stringer.ObjectScope();
    return AppendMediaOutput(stringer, channel);
}

Result MediaOutputToJsonConverter::AppendMediaOutput(Stringer& stringer, const MediaOutput& channel) const noexcept
{
    return Details::AppendMediaOutput(stringer, channel, timepointConverter_);
}

// The results of the nested writers below, except that of the common members, are not looked at on purpose: the channel
// goes out with whatever they wrote.
Result Details::AppendMediaOutput(Stringer& stringer, const MediaOutput& channel,
                                  const SharedTimePointWriter& timepointConverter)
{
    stringer.Member(keyOf<Form::type>, Form::playerTag);

    // One for the process, which keeps the time point writer of whoever comes first. Never destroyed, so that channels
    // can still be written while the process ends.
    static const auto& mediaIOConverter = *new MediaIOToJsonConverter(timepointConverter);
    if (auto result = mediaIOConverter.AppendMediaIO(channel, stringer); !result)
        return result;

    stringer.Member(keyOf<Form::playingStatus>, ToString(channel.PlayingStatus()).c_str());

    if (channel.SpeedOnAir().Denominator() != 0)
    {
        stringer.Key(keyOf<Form::speedOnAir>);
        static_cast<void>(WriteSpeed(stringer, channel.SpeedOnAir()));
    }

    if (channel.GlobalLoopMode() != PlayingLoopMode::Unknown)
        stringer.Member(keyOf<Form::globalLoopMode>, ToString(channel.GlobalLoopMode()).c_str());

    AppendUnlessEmpty(stringer, keyOf<Form::remainingTime>, channel.RemainingTime());

    if (channel.CurrentTimePointOnAir() != TimePoint::Empty())
    {
        // Always in this form, whatever time point writer this converter holds.
        stringer.Key(keyOf<Form::currentTimePointOnAir>);
        AppendNanosecondsObject(stringer, TimePointForm::tag, channel.CurrentTimePointOnAir().Nanoseconds());
    }

    AppendUnlessEmpty(stringer, keyOf<Form::todTimecodeOnAir>, channel.TodTimecodeOnAir());
    AppendUnlessEmpty(stringer, keyOf<Form::userTimecodeOnAir>, channel.UserTimecodeOnAir());

    if (channel.PrimaryTimecodeType() != TimecodePrimary::NotSet)
        stringer.Member(keyOf<Form::primaryTimecodeType>, ToString(channel.PrimaryTimecodeType()).c_str());

    if (channel.Sequence().HasValue())
    {
        stringer.Key(keyOf<Form::sequence>);
        static_cast<void>(SequenceOutputToJsonConverter(timepointConverter).To(*channel.Sequence(), stringer));
    }

    if (!channel.InBoundary()->IsEmpty())
    {
        stringer.Key(keyOf<Form::inBoundary>);
        static_cast<void>(WriteBoundary(stringer, *channel.InBoundary(), *timepointConverter));
    }

    if (!channel.OutBoundary()->IsEmpty())
    {
        // With a time point writer of its own, unlike the in boundary; receivers expect the default form here.
        stringer.Key(keyOf<Form::outBoundary>);
        static_cast<void>(WriteBoundary(stringer, *channel.OutBoundary(), TimePointToJsonObjectConverter()));
    }

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
