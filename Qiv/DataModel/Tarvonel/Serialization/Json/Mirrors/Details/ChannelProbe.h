#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Optional.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/MediaAssets/TimecodePrimary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingLoopMode.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingStatus.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/RecordingStatus.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelMembers.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/TimeCode.h>
#include <Qiv/TimePoints/TimePoint.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors::Details
{

/// Tells whether merging an update has changed a channel. Only the members that the update names can change, so that
/// only these are kept from before; a copy of the channel would cost more than merging the update.
class ChannelProbe
{
public:
    /// Keeps what the channel has of the update's members. The update must outlive the probe.
    ChannelProbe(const MediaIOs::Json::Details::ChannelMembers& update, const Tarvonel::MediaIOs::MediaIO& channel);

    bool HasChanged(const Tarvonel::MediaIOs::MediaIO& channel) const;

private:
    using Form = MediaIOs::Json::Details::ChannelForm;

    // The probe is constant or not.
    template <typename Probe, typename Visit>
    static void VisitNamed(Probe& probe, const Tarvonel::MediaIOs::MediaIO& channel, const Visit& visit);

    const MediaIOs::Json::Details::ChannelMembers& members_;
    // What the channel had of the members that the update has, in the order of the form.
    std::optional<std::string> name_;
    std::optional<BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>> mediaAssetOnAir_;
    std::optional<MediaAssets::TimecodePrimary> primaryTimecodeType_;
    std::optional<Tarvonel::MediaIOs::RecordingStatus> recordingStatus_;
    std::optional<TimePoints::TimePoint> lastTimePoint_;
    std::optional<TimePoints::TimeCode> lastTodTimecode_;
    std::optional<TimePoints::TimeCode> lastUserTimecode_;
    std::optional<TimePoints::Duration> remainingCapacity_;
    std::optional<TimePoints::Duration> totalCapacity_;
    std::optional<Tarvonel::MediaIOs::PlayingStatus> playingStatus_;
    std::optional<Tarvonel::MediaIOs::Speed> speedOnAir_;
    std::optional<Tarvonel::MediaIOs::PlayingLoopMode> globalLoopMode_;
    std::optional<TimePoints::Duration> remainingTime_;
    std::optional<BusinessEntityModel::BaseTypes::Optional<Tarvonel::MediaIOs::SequenceOutput>> sequence_;
    std::optional<TimePoints::TimePoint> currentTimePointOnAir_;
    std::optional<TimePoints::TimeCode> todTimecodeOnAir_;
    std::optional<TimePoints::TimeCode> userTimecodeOnAir_;
    std::optional<std::unique_ptr<Tarvonel::MediaIOs::Boundary>> inBoundary_;
    std::optional<std::unique_ptr<Tarvonel::MediaIOs::Boundary>> outBoundary_;
    std::vector<std::pair<std::string_view, std::optional<std::string>>> metadata_;
    std::optional<bool> hadMetadata_; // when the update names them
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors::Details
