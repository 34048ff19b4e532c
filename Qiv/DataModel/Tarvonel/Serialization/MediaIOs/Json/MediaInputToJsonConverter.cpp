#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaInputToJsonConverter.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelWriting.h>

#include <memory>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Details::AppendUnlessEmpty;
using MediaAssets::TimecodePrimary;
using MediaAssets::Serialization::Json::TimePointToJsonObjectConverter;
using Tarvonel::MediaIOs::MediaInput;
using TimePoints::TimePoint;

MediaInputToJsonConverter::MediaInputToJsonConverter() : MediaInputToJsonConverter(nullptr) {}

MediaInputToJsonConverter::MediaInputToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(timepointConverter ? std::move(timepointConverter)
                                             : std::make_shared<TimePointToJsonObjectConverter>())
{
}

MediaInputToJsonConverter::~MediaInputToJsonConverter() = default;

Result MediaInputToJsonConverter::To(const MediaInput& channel, Stringer& stringer) const noexcept
{
    stringer.Object();
    auto result = AppendMediaInput(stringer, channel);
    stringer.CloseObject();
    return result;
}

Result MediaInputToJsonConverter::AppendMediaInput(Stringer& stringer, const MediaInput& channel) const noexcept
{
    stringer.Member("_type", "MediaInput");

    // Without this converter's time point writer on purpose: the common members keep the default form.
    if (auto result = Details::AppendCommon(stringer, channel); !result)
        return result;

    stringer.Member("recordingStatus", ToString(channel.RecordingStatus()).c_str());

    if (channel.LastTimePoint() != TimePoint::Empty())
    {
        stringer.Key("lastTimePoint");
        // Dropped on purpose: it must not fail the channel.
        static_cast<void>(AppendNested(stringer, *timepointConverter_, channel.LastTimePoint()));
    }

    AppendUnlessEmpty(stringer, "lastTodTimecode", channel.LastTodTimecode());
    AppendUnlessEmpty(stringer, "lastUserTimecode", channel.LastUserTimecode());

    if (channel.PrimaryTimecodeType() != TimecodePrimary::NotSet)
        stringer.Member("primaryTimecodeType", ToString(channel.PrimaryTimecodeType()).c_str());

    AppendUnlessEmpty(stringer, "remainingCapacity", channel.RemainingCapacity());
    AppendUnlessEmpty(stringer, "totalCapacity", channel.TotalCapacity());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
