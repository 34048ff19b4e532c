#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

BoundaryAbsolute::BoundaryAbsolute(const TimePoints::TimePoint& timepoint) : timepoint_(timepoint) {}

BoundaryAbsolute::~BoundaryAbsolute() = default;

BoundaryOrigin BoundaryAbsolute::Origin() const
{
    return BoundaryOrigin::Absolute;
}

std::unique_ptr<Boundary> BoundaryAbsolute::Clone() const
{
    return std::make_unique<BoundaryAbsolute>(*this);
}

bool BoundaryAbsolute::Equals(const Boundary& other) const
{
    if (other.Origin() != BoundaryOrigin::Absolute)
        return false;
    // The origin tells the kind; a boundary of another class that claims this origin is unequal.
    const auto* absolute = dynamic_cast<const BoundaryAbsolute*>(&other);
    return absolute != nullptr && absolute->timepoint_ == timepoint_;
}

bool BoundaryAbsolute::IsEmpty() const
{
    return timepoint_ == TimePoints::TimePoint::Empty();
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
