#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadTimePoint.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using MediaAssets::TimecodePrimary;
using MediaAssets::Serialization::Json::Details::ReadTimePoint;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::RecordingStatus;
using Tarvonel::MediaIOs::To;
using TimePoints::TimePoint;
using Form = ChannelForm;

Result ReadMediaInput(ValueView json, MediaInput& channel)
{
    const ChannelMembers members(json);
    if (auto result = members.CheckShape(Form::emptyRecorderMessage, Form::recorderTag); !result)
        return result;
    if (auto result = ApplyCommonMembers(members, channel); !result)
        return result;
    return ApplyRecorderMembers(members, channel);
}

Result AppendRecorderMembers(ValueView json, MediaInput& channel)
{
    return ApplyRecorderMembers(ChannelMembers(json), channel);
}

Result ApplyRecorderMembers(const ChannelMembers& members, MediaInput& channel)
{
    if (const auto text = members.Get<Form::recordingStatus>())
        channel.RecordingStatus(To<RecordingStatus>(*text));

    if (const auto lastTimePoint = members.Get<Form::lastTimePoint>())
    {
        TimePoint timePoint;
        if (auto result = ReadTimePoint(lastTimePoint, timePoint); !result)
            return result;
        channel.LastTimePoint(timePoint);
    }

    if (const auto timeCode = TimeCodeOf(members.Get<Form::lastTodTimecode>()))
        channel.LastTodTimecode(*timeCode);

    if (const auto timeCode = TimeCodeOf(members.Get<Form::lastUserTimecode>()))
        channel.LastUserTimecode(*timeCode);

    if (const auto text = members.Get<Form::primaryTimecodeType>())
        channel.PrimaryTimecodeType(To<TimecodePrimary>(*text));

    // The remaining capacity before the total, since the setters adjust each other: the order decides what two
    // capacities that contradict each other become.
    if (auto duration = DurationOf(members.Get<Form::remainingCapacity>()))
        channel.RemainingCapacity(*duration);

    if (const auto duration = DurationOf(members.Get<Form::totalCapacity>()))
        channel.TotalCapacity(*duration);

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
