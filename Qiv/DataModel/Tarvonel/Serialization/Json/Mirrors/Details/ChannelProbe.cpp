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
using MediaIOs::Json::Details::ChannelMembers;
using Tarvonel::MediaIOs::Boundary;
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

// Calls `visit` for each member that the update names, metadata apart, with what is kept of it and what the channel
// has.
template <typename Probe, typename Visit>
void ChannelProbe::VisitNamed(Probe& probe, const MediaIO& channel, const Visit& visit)
{
    const ChannelMembers& members = probe.members_;
    const auto visitIf = [&visit](const auto& member, auto& kept, const auto& value)
    {
        if (member)
            visit(kept, value);
    };
    visitIf(members.Get<Form::name>(), probe.name_, channel.Name());
    visitIf(members.Get<Form::mediaAssetOnAir>(), probe.mediaAssetOnAir_, channel.MediaAssetOnAir());
    if (channel.GetMode() == MediaIO::Mode::Input)
    {
        const auto& input = static_cast<const MediaInput&>(channel);
        visitIf(members.Get<Form::recordingStatus>(), probe.recordingStatus_, input.RecordingStatus());
        visitIf(members.Get<Form::lastTimePoint>(), probe.lastTimePoint_, input.LastTimePoint());
        visitIf(members.Get<Form::lastTodTimecode>(), probe.lastTodTimecode_, input.LastTodTimecode());
        visitIf(members.Get<Form::lastUserTimecode>(), probe.lastUserTimecode_, input.LastUserTimecode());
        visitIf(members.Get<Form::primaryTimecodeType>(), probe.primaryTimecodeType_, input.PrimaryTimecodeType());
        // Either capacity may change the other, but not without changing itself.
        visitIf(members.Get<Form::remainingCapacity>(), probe.remainingCapacity_, input.RemainingCapacity());
        visitIf(members.Get<Form::totalCapacity>(), probe.totalCapacity_, input.TotalCapacity());
        return;
    }
    const auto& output = static_cast<const MediaOutput&>(channel);
    visitIf(members.Get<Form::playingStatus>(), probe.playingStatus_, output.PlayingStatus());
    visitIf(members.Get<Form::speedOnAir>(), probe.speedOnAir_, output.SpeedOnAir());
    visitIf(members.Get<Form::globalLoopMode>(), probe.globalLoopMode_, output.GlobalLoopMode());
    visitIf(members.Get<Form::remainingTime>(), probe.remainingTime_, output.RemainingTime());
    visitIf(members.Get<Form::currentTimePointOnAir>(), probe.currentTimePointOnAir_, output.CurrentTimePointOnAir());
    visitIf(members.Get<Form::todTimecodeOnAir>(), probe.todTimecodeOnAir_, output.TodTimecodeOnAir());
    visitIf(members.Get<Form::userTimecodeOnAir>(), probe.userTimecodeOnAir_, output.UserTimecodeOnAir());
    visitIf(members.Get<Form::primaryTimecodeType>(), probe.primaryTimecodeType_, output.PrimaryTimecodeType());
    visitIf(members.Get<Form::sequence>(), probe.sequence_, output.Sequence());
    visitIf(members.Get<Form::inBoundary>(), probe.inBoundary_, output.InBoundary());
    visitIf(members.Get<Form::outBoundary>(), probe.outBoundary_, output.OutBoundary());
}

ChannelProbe::ChannelProbe(const ChannelMembers& update, const MediaIO& channel) : members_(update)
{
    VisitNamed(*this, channel,
               [](auto& kept, const auto& value)
               {
                   if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::unique_ptr<Boundary>>)
                       kept = value->Clone();
                   else
                       kept = value;
               });
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
    VisitNamed(*this, channel,
               [&](const auto& kept, const auto& value)
               { hasChanged = hasChanged || !Json::Details::AreSame(*kept, value); });
    return hasChanged || (hadMetadata_ && *hadMetadata_ == channel.Metadata().Empty()) ||
           std::any_of(metadata_.begin(), metadata_.end(),
                       [&](const auto& value)
                       { return !AreSame(Channels::MetadataValue(channel.Metadata(), value.first), value.second); });
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors::Details
