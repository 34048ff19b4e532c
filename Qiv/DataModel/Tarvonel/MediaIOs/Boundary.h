#pragma once

#include <Qiv/DataModel/Tarvonel/Export.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryOrigin.h>

#include <memory>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// The in point or the out point of what a player channel plays: the base of BoundaryAbsolute and BoundaryRelative.
/// Boundaries are owned through unique pointers and copied by Clone().
class QIV_DATAMODEL_TARVONEL_EXPORT Boundary
{
public:
    virtual ~Boundary();

    virtual BoundaryOrigin Origin() const = 0;
    /// A new boundary of the same kind with the same fields.
    virtual std::unique_ptr<Boundary> Clone() const = 0;
    /// True when `other` has the same origin, is of the same kind and has the same fields.
    virtual bool Equals(const Boundary& other) const = 0;
    /// True when the boundary says nothing: no in or out point is set.
    virtual bool IsEmpty() const = 0;
    virtual bool operator==(const Boundary& other) const;
    virtual bool operator!=(const Boundary& other) const;

protected:
    Boundary() = default;
    Boundary(const Boundary&) = default;
    Boundary& operator=(const Boundary&) = default;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
