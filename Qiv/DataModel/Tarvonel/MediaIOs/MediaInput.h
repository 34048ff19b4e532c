#pragma once

#include <Qiv/DataModel/MediaAssets/TimecodePrimary.h>
#include <Qiv/DataModel/Tarvonel/Export.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/RecordingStatus.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/TimeCode.h>
#include <Qiv/TimePoints/TimePoint.h>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// A recorder channel: what it records and how much recording time it has.
///
/// The total capacity is never negative and the remaining capacity never exceeds it. By default the recorder is idle
/// and everything else is empty.
class QIV_DATAMODEL_TARVONEL_EXPORT MediaInput : public MediaIO
{
public:
    MediaInput() = default;
    MediaInput(const MediaInput&) = default;
    MediaInput(MediaInput&&) = default;
    MediaInput& operator=(const MediaInput&) = default;
    MediaInput& operator=(MediaInput&&) = default;
    ~MediaInput() override;

    /// Always `Input`.
    Mode GetMode() const override;

    MediaIOs::RecordingStatus RecordingStatus() const noexcept { return recordingStatus_; }
    void RecordingStatus(MediaIOs::RecordingStatus recordingStatus) { recordingStatus_ = recordingStatus; }

    /// The last recorded time point.
    const TimePoints::TimePoint& LastTimePoint() const noexcept { return lastTimePoint_; }
    void LastTimePoint(const TimePoints::TimePoint& lastTimePoint) { lastTimePoint_ = lastTimePoint; }

    /// The last recorded time-of-day time code.
    const TimePoints::TimeCode& LastTodTimecode() const noexcept { return lastTodTimecode_; }
    void LastTodTimecode(const TimePoints::TimeCode& lastTodTimecode) { lastTodTimecode_ = lastTodTimecode; }

    /// The last recorded user time code.
    const TimePoints::TimeCode& LastUserTimecode() const noexcept { return lastUserTimecode_; }
    void LastUserTimecode(const TimePoints::TimeCode& lastUserTimecode) { lastUserTimecode_ = lastUserTimecode; }

    /// Which of the two time codes is the primary one.
    MediaAssets::TimecodePrimary PrimaryTimecodeType() const noexcept { return primaryTimecodeType_; }
    void PrimaryTimecodeType(MediaAssets::TimecodePrimary type) { primaryTimecodeType_ = type; }

    /// The recording time still available.
    const TimePoints::Duration& RemainingCapacity() const noexcept { return remainingCapacity_; }
    /// Stores the remaining capacity, also a negative one, and raises a smaller total capacity to it. The argument is
    /// only read; it is taken by non-const reference as the server's other parts declare it.
    void RemainingCapacity(TimePoints::Duration& remainingCapacity);

    /// The total recording time of the channel.
    const TimePoints::Duration& TotalCapacity() const noexcept { return totalCapacity_; }
    /// Stores the total capacity, zero for a negative one, and lowers a greater remaining capacity to it.
    ///
    /// Unlike RemainingCapacity, which makes the total grow, this makes the remaining capacity shrink: when both are
    /// set, the order matters.
    void TotalCapacity(const TimePoints::Duration& totalCapacity);

    /// Equal in every member, references by their identifiers.
    bool operator==(const MediaInput& other) const;
    bool operator!=(const MediaInput& other) const { return !(*this == other); }

private:
    MediaIOs::RecordingStatus recordingStatus_ = MediaIOs::RecordingStatus::Idle;
    TimePoints::TimePoint lastTimePoint_;
    TimePoints::TimeCode lastTodTimecode_;
    TimePoints::TimeCode lastUserTimecode_;
    MediaAssets::TimecodePrimary primaryTimecodeType_ = MediaAssets::TimecodePrimary::NotSet;
    TimePoints::Duration remainingCapacity_;
    TimePoints::Duration totalCapacity_;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
