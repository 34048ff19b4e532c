#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Details/ChannelProbe.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/MetadataValues.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/SameContent.h>

#include <algorithm>
#include <type_traits>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors::Details
{

using Common::Serialization::Json::Details::ValueView;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;

namespace
{

bool AreSame(const std::optional<std::string>& left, const std::optional<std::string>& right)
{
    return left && right ? Json::Details::AreWrittenAlike(*left, *right) : left == right;
}

} // namespace

template <const auto& member, typename Type, typename Visit>
void ChannelProbe::VisitIfNamed(const Type& value, const Visit& visit) const
{
    if (members_.Get<member>())
        visit(value);
}

// Calls `visit` with the value of each member that the update names, metadata apart.
template <typename Visit>
void ChannelProbe::VisitNamed(const MediaIO& channel, const Visit& visit) const
{
    VisitIfNamed<Form::name>(static_cast<const std::string&>(channel.Name()), visit);
    VisitIfNamed<Form::mediaAssetOnAir>(channel.MediaAssetOnAir(), visit);
    if (channel.GetMode() == MediaIO::Mode::Input)
    {
        const auto& input = static_cast<const MediaInput&>(channel);
        VisitIfNamed<Form::recordingStatus>(input.RecordingStatus(), visit);
        VisitIfNamed<Form::lastTimePoint>(input.LastTimePoint(), visit);
        VisitIfNamed<Form::lastTodTimecode>(input.LastTodTimecode(), visit);
        VisitIfNamed<Form::lastUserTimecode>(input.LastUserTimecode(), visit);
        VisitIfNamed<Form::primaryTimecodeType>(input.PrimaryTimecodeType(), visit);
        // Either capacity may change the other, but not without changing itself.
        VisitIfNamed<Form::remainingCapacity>(input.RemainingCapacity(), visit);
        VisitIfNamed<Form::totalCapacity>(input.TotalCapacity(), visit);
        return;
    }
    const auto& output = static_cast<const MediaOutput&>(channel);
    VisitIfNamed<Form::playingStatus>(output.PlayingStatus(), visit);
    VisitIfNamed<Form::speedOnAir>(output.SpeedOnAir(), visit);
    VisitIfNamed<Form::globalLoopMode>(output.GlobalLoopMode(), visit);
    VisitIfNamed<Form::remainingTime>(output.RemainingTime(), visit);
    VisitIfNamed<Form::currentTimePointOnAir>(output.CurrentTimePointOnAir(), visit);
    VisitIfNamed<Form::todTimecodeOnAir>(output.TodTimecodeOnAir(), visit);
    VisitIfNamed<Form::userTimecodeOnAir>(output.UserTimecodeOnAir(), visit);
    VisitIfNamed<Form::primaryTimecodeType>(output.PrimaryTimecodeType(), visit);
    VisitIfNamed<Form::sequence>(output.Sequence(), visit);
    VisitIfNamed<Form::inBoundary>(output.InBoundary(), visit);
    VisitIfNamed<Form::outBoundary>(output.OutBoundary(), visit);
}

ChannelProbe::ChannelProbe(ValueView update, const MediaIO& channel) : members_(update)
{
    values_.reserve(members_.Size());
    VisitNamed(channel, [this](const auto& value) { values_.push_back(Kept(value)); });
    if (const auto metadata = members_.Get<Form::metadata>())
    {
        hadMetadata_ = !channel.Metadata().Empty();
        metadata.VisitMembers([&](std::string_view key, ValueView)
                              { metadata_.emplace_back(key, Channels::MetadataValue(channel.Metadata(), key)); });
    }
}

bool ChannelProbe::HasChanged(const MediaIO& channel) const
{
    bool hasChanged = false;
    auto before = values_.begin();
    VisitNamed(channel,
               [&](const auto& value)
               {
                   using Type = std::decay_t<decltype(value)>;
                   if constexpr (std::is_same_v<Type, Sequence>)
                       hasChanged =
                           !Json::Details::AreSame(*std::get<std::unique_ptr<Sequence>>(*before), value) || hasChanged;
                   else
                       hasChanged = !Json::Details::AreSame(std::get<Type>(*before), value) || hasChanged;
                   ++before;
               });
    return hasChanged || (hadMetadata_ && *hadMetadata_ == channel.Metadata().Empty()) ||
           std::any_of(metadata_.begin(), metadata_.end(),
                       [&](const auto& value)
                       { return !AreSame(Channels::MetadataValue(channel.Metadata(), value.first), value.second); });
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors::Details
