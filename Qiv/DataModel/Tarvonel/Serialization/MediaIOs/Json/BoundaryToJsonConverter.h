#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Writes an in or out point, in the form that `JsonToBoundaryConverter` reads; "timepoint" unless it is empty.
///
/// A failure of the time point writer does not fail the boundary. A boundary whose `Origin()` does not fit its class
/// gives "Null BoundaryRelative" or "Null BoundaryAbsolute" and an empty object.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT BoundaryToJsonConverter
    : public ToJsonConverter<Tarvonel::MediaIOs::Boundary>
{
public:
    /// Writes time points with a `TimePointToJsonObjectConverter` of its own.
    BoundaryToJsonConverter();
    /// Writes time points with `timepointConverter`, which must not throw; an empty pointer stands for the default one.
    explicit BoundaryToJsonConverter(SharedTimePointWriter timepointConverter);
    BoundaryToJsonConverter(const BoundaryToJsonConverter&) = default;
    BoundaryToJsonConverter& operator=(const BoundaryToJsonConverter&) = default;
    ~BoundaryToJsonConverter() override;

    using ToJsonConverter::To;
    Result To(const Tarvonel::MediaIOs::Boundary& boundary, Stringer& stringer) const noexcept override;

    /// Write the members of one kind into an object that is already open.
    Result Append(Stringer& stringer, const Tarvonel::MediaIOs::BoundaryAbsolute& boundary) const noexcept;
    Result Append(Stringer& stringer, const Tarvonel::MediaIOs::BoundaryRelative& boundary) const noexcept;

private:
    SharedTimePointWriter timepointConverter_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
