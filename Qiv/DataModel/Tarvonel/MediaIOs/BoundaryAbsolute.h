#pragma once

#include <Qiv/DataModel/Tarvonel/Export.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/TimePoints/TimePoint.h>

#include <memory>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// A boundary at a time point; empty at the empty time point, where it is by default.
class QIV_DATAMODEL_TARVONEL_EXPORT BoundaryAbsolute : public Boundary
{
public:
    BoundaryAbsolute() = default;
    explicit BoundaryAbsolute(const TimePoints::TimePoint& timepoint);
    BoundaryAbsolute(const BoundaryAbsolute&) = default;
    BoundaryAbsolute& operator=(const BoundaryAbsolute&) = default;
    ~BoundaryAbsolute() override;

    const TimePoints::TimePoint& Timepoint() const noexcept { return timepoint_; }
    void Timepoint(const TimePoints::TimePoint& timepoint) { timepoint_ = timepoint; }

    /// Always `Absolute`.
    BoundaryOrigin Origin() const override;
    std::unique_ptr<Boundary> Clone() const override;
    bool Equals(const Boundary& other) const override;
    bool IsEmpty() const override;

private:
    TimePoints::TimePoint timepoint_;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
