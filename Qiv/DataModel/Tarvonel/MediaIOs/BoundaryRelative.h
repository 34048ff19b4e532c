#pragma once

#include <Qiv/DataModel/Tarvonel/Export.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>

#include <cstdint>
#include <memory>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// A boundary at a signed offset from another one. It is never empty.
///
/// The unit of the offset is up to the server's other parts. The origin is meant to be one of the relative ones;
/// `Absolute` is stored all the same.
class QIV_DATAMODEL_TARVONEL_EXPORT BoundaryRelative : public Boundary
{
public:
    /// Offset 0 from `RelativeToCorrespondingMediaBoundary`.
    BoundaryRelative() = default;
    BoundaryRelative(BoundaryOrigin origin, std::int32_t offset);
    BoundaryRelative(const BoundaryRelative&) = default;
    BoundaryRelative& operator=(const BoundaryRelative&) = default;
    ~BoundaryRelative() override;

    BoundaryOrigin Origin() const override;
    void Origin(BoundaryOrigin origin) { origin_ = origin; }

    std::int32_t Offset() const noexcept { return offset_; }
    void Offset(std::int32_t offset) { offset_ = offset; }

    std::unique_ptr<Boundary> Clone() const override;
    bool Equals(const Boundary& other) const override;
    bool IsEmpty() const override;

private:
    BoundaryOrigin origin_ = BoundaryOrigin::RelativeToCorrespondingMediaBoundary;
    std::int32_t offset_ = 0;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
