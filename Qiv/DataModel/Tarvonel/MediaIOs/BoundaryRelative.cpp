#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

BoundaryRelative::BoundaryRelative(BoundaryOrigin origin, std::int32_t offset) : origin_(origin), offset_(offset) {}

BoundaryRelative::~BoundaryRelative() = default;

BoundaryOrigin BoundaryRelative::Origin() const
{
    return origin_;
}

std::unique_ptr<Boundary> BoundaryRelative::Clone() const
{
    return std::make_unique<BoundaryRelative>(*this);
}

bool BoundaryRelative::Equals(const Boundary& other) const
{
    if (other.Origin() != origin_)
        return false;
    // The origin tells the kind; a boundary of another class that claims this origin is unequal.
    const auto* relative = dynamic_cast<const BoundaryRelative*>(&other);
    return relative != nullptr && relative->offset_ == offset_;
}

bool BoundaryRelative::IsEmpty() const
{
    return false;
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
