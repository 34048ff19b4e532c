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
#include <variant>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors::Details
{

/// Tells whether merging an update has changed a channel. Only the members that the update names can change, so that
/// only these are kept from before; a copy of the channel would cost more than merging the update.
class ChannelProbe
{
public:
    /// Keeps what the channel has of the update's members. The update must outlive the probe.
    ChannelProbe(Common::Serialization::Json::Details::ValueView update, const Tarvonel::MediaIOs::MediaIO& channel);

    bool HasChanged(const Tarvonel::MediaIOs::MediaIO& channel) const;

private:
    using Form = MediaIOs::Json::Details::ChannelForm;
    using Sequence = BusinessEntityModel::BaseTypes::Optional<Tarvonel::MediaIOs::SequenceOutput>;
    using Value = std::variant<std::string, Tarvonel::MediaIOs::RecordingStatus, Tarvonel::MediaIOs::PlayingStatus,
                               Tarvonel::MediaIOs::PlayingLoopMode, MediaAssets::TimecodePrimary, TimePoints::TimePoint,
                               TimePoints::TimeCode, TimePoints::Duration, Tarvonel::MediaIOs::Speed,
                               BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>,
                               std::unique_ptr<Tarvonel::MediaIOs::Boundary>, std::unique_ptr<Sequence>>;

    static Value Kept(const std::unique_ptr<Tarvonel::MediaIOs::Boundary>& boundary) { return boundary->Clone(); }
    static Value Kept(const Sequence& sequence) { return std::make_unique<Sequence>(sequence); }
    template <typename Type>
    static Value Kept(const Type& value)
    {
        return value;
    }

    template <const auto& member, typename Type, typename Visit>
    void VisitIfNamed(const Type& value, const Visit& visit) const;
    template <typename Visit>
    void VisitNamed(const Tarvonel::MediaIOs::MediaIO& channel, const Visit& visit) const;

    MediaIOs::Json::Details::ChannelMembers members_;
    std::vector<Value> values_; // of the members that the update has, in the order of VisitNamed
    std::vector<std::pair<std::string_view, std::optional<std::string>>> metadata_;
    std::optional<bool> hadMetadata_; // when the update names them
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors::Details
