#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaInputToJsonConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Common::Serialization::Json::Details::keyOf;
using MediaAssets::TimecodePrimary;
using Tarvonel::MediaIOs::MediaInput;
using TimePoints::TimePoint;
using Form = Details::ChannelForm;

MediaInputToJsonConverter::MediaInputToJsonConverter() : MediaInputToJsonConverter(nullptr) {}

MediaInputToJsonConverter::MediaInputToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(Details::OrDefault(std::move(timepointConverter)))
{
}

MediaInputToJsonConverter::~MediaInputToJsonConverter() = default;

Result MediaInputToJsonConverter::To(const MediaInput& channel, Stringer& stringer) const noexcept
{
    const auto object = stringer.ObjectScope();
    return AppendMediaInput(stringer, channel);
}

Result MediaInputToJsonConverter::AppendMediaInput(Stringer& stringer, const MediaInput& channel) const noexcept
{
    return Details::AppendMediaInput(stringer, channel, *timepointConverter_);
}

Result Details::AppendMediaInput(Stringer& stringer, const MediaInput& channel,
                                 const ToJsonConverter<TimePoint>& timepointConverter)
{
    stringer.Member(keyOf<Form::type>, Form::recorderTag);

    // Without this converter's time point writer on purpose: the common members keep the default form.
    if (auto result = AppendCommonMembers(stringer, channel); !result)
        return result;

    stringer.Member(keyOf<Form::recordingStatus>, ToString(channel.RecordingStatus()).c_str());

    if (channel.LastTimePoint() != TimePoint::Empty())
    {
        stringer.Key(keyOf<Form::lastTimePoint>);
        // Dropped on purpose: it must not fail the channel.
        static_cast<void>(AppendNested(stringer, timepointConverter, channel.LastTimePoint()));
    }

    AppendUnlessEmpty(stringer, keyOf<Form::lastTodTimecode>, channel.LastTodTimecode());
    AppendUnlessEmpty(stringer, keyOf<Form::lastUserTimecode>, channel.LastUserTimecode());

    if (channel.PrimaryTimecodeType() != TimecodePrimary::NotSet)
        stringer.Member(keyOf<Form::primaryTimecodeType>, ToString(channel.PrimaryTimecodeType()).c_str());

    AppendUnlessEmpty(stringer, keyOf<Form::remainingCapacity>, channel.RemainingCapacity());
    AppendUnlessEmpty(stringer, keyOf<Form::totalCapacity>, channel.TotalCapacity());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
