#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Optional.h>
#include <Qiv/DataModel/MediaAssets/TimecodePrimary.h>
#include <Qiv/DataModel/Tarvonel/Export.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingLoopMode.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingStatus.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/TimeCode.h>
#include <Qiv/TimePoints/TimePoint.h>

#include <memory>
#include <utility>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// A player channel: what it plays, how, and between which boundaries.
///
/// Both boundaries always point to a boundary of this channel's own; a channel without in or out point has an empty
/// BoundaryAbsolute there. A copy has clones of them, and a moved-from channel has empty ones. The boundaries that a
/// moved-from channel needs are allocated, so that moving may throw std::bad_alloc; both channels then hold valid but
/// unspecified values.
///
/// By default the player is idle, its speed undefined, its loop mode unknown, and everything else empty.
class QIV_DATAMODEL_TARVONEL_EXPORT MediaOutput : public MediaIO
{
public:
    MediaOutput();
    MediaOutput(const MediaOutput&);
    MediaOutput(MediaOutput&&) noexcept(false);
    MediaOutput& operator=(const MediaOutput&);
    MediaOutput& operator=(MediaOutput&&) noexcept(false);
    ~MediaOutput() override;

    /// Always `Output`.
    Mode GetMode() const override;

    MediaIOs::PlayingStatus PlayingStatus() const noexcept { return playingStatus_; }
    void PlayingStatus(MediaIOs::PlayingStatus playingStatus) { playingStatus_ = playingStatus; }

    const Speed& SpeedOnAir() const noexcept { return speedOnAir_; }
    void SpeedOnAir(Speed speedOnAir) { speedOnAir_ = speedOnAir; }

    PlayingLoopMode GlobalLoopMode() const noexcept { return globalLoopMode_; }
    void GlobalLoopMode(PlayingLoopMode globalLoopMode) { globalLoopMode_ = globalLoopMode; }

    /// The time left to play.
    const TimePoints::Duration& RemainingTime() const noexcept { return remainingTime_; }
    /// The argument is only read; it is taken by non-const reference as the server's other parts declare it.
    void RemainingTime(TimePoints::Duration& remainingTime) { remainingTime_ = remainingTime; }

    const TimePoints::TimePoint& CurrentTimePointOnAir() const noexcept { return currentTimePointOnAir_; }
    void CurrentTimePointOnAir(const TimePoints::TimePoint& timePoint) { currentTimePointOnAir_ = timePoint; }

    /// The time-of-day time code on air.
    const TimePoints::TimeCode& TodTimecodeOnAir() const noexcept { return todTimecodeOnAir_; }
    void TodTimecodeOnAir(const TimePoints::TimeCode& timeCode) { todTimecodeOnAir_ = timeCode; }

    /// The user time code on air.
    const TimePoints::TimeCode& UserTimecodeOnAir() const noexcept { return userTimecodeOnAir_; }
    void UserTimecodeOnAir(const TimePoints::TimeCode& timeCode) { userTimecodeOnAir_ = timeCode; }

    /// Which of the two time codes is the primary one.
    MediaAssets::TimecodePrimary PrimaryTimecodeType() const noexcept { return primaryTimecodeType_; }
    void PrimaryTimecodeType(MediaAssets::TimecodePrimary type) { primaryTimecodeType_ = type; }

    /// The state of the sequence; present only while one is played.
    const BusinessEntityModel::BaseTypes::Optional<SequenceOutput>& Sequence() const noexcept { return sequence_; }
    void Sequence(const SequenceOutput& sequence) { sequence_ = sequence; }
    void Sequence(SequenceOutput&& sequence) { sequence_ = std::move(sequence); }
    void ClearSequence() noexcept { sequence_.Undefine(); }

    /// Never null.
    const std::unique_ptr<Boundary>& InBoundary() const noexcept { return inBoundary_.Pointer(); }
    /// Takes over the boundary and destroys the former one. A null pointer sets an empty BoundaryAbsolute.
    void InBoundary(std::unique_ptr<Boundary>&& inBoundary);

    /// Never null.
    const std::unique_ptr<Boundary>& OutBoundary() const noexcept { return outBoundary_.Pointer(); }
    /// Takes over the boundary and destroys the former one. A null pointer sets an empty BoundaryAbsolute.
    void OutBoundary(std::unique_ptr<Boundary>&& outBoundary);

    /// Equal in every member, boundaries by their kinds and fields, references by their identifiers.
    bool operator==(const MediaOutput& other) const;
    bool operator!=(const MediaOutput& other) const { return !(*this == other); }

private:
    /// Owns a boundary that is never null: copying clones it, moving leaves an empty one behind.
    class OwnedBoundary
    {
    public:
        OwnedBoundary();
        OwnedBoundary(const OwnedBoundary& other);
        OwnedBoundary(OwnedBoundary&& other) noexcept(false);
        OwnedBoundary& operator=(const OwnedBoundary& other);
        OwnedBoundary& operator=(OwnedBoundary&& other) noexcept(false);

        const std::unique_ptr<Boundary>& Pointer() const noexcept { return pointer_; }
        void Pointer(std::unique_ptr<Boundary>&& pointer);

    private:
        std::unique_ptr<Boundary> pointer_;
    };

    MediaIOs::PlayingStatus playingStatus_ = MediaIOs::PlayingStatus::Idle;
    Speed speedOnAir_;
    PlayingLoopMode globalLoopMode_ = PlayingLoopMode::Unknown;
    TimePoints::Duration remainingTime_;
    TimePoints::TimePoint currentTimePointOnAir_;
    TimePoints::TimeCode todTimecodeOnAir_;
    TimePoints::TimeCode userTimecodeOnAir_;
    MediaAssets::TimecodePrimary primaryTimecodeType_ = MediaAssets::TimecodePrimary::NotSet;
    OwnedBoundary inBoundary_;
    OwnedBoundary outBoundary_;
    BusinessEntityModel::BaseTypes::Optional<SequenceOutput> sequence_;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
