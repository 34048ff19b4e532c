#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/EnumerationTexts.h>
#include <Qiv/DataModel/Tarvonel/Export.h>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// What a boundary is measured from.
enum class BoundaryOrigin : std::int32_t
{
    Absolute = 0,                             ///< a time point; the origin of BoundaryAbsolute alone
    RelativeToCorrespondingMediaBoundary = 1, ///< the media's boundary of the same side
    RelativeToOppositeMediaBoundary = 2,      ///< the media's boundary of the other side
    RelativeToOppositeLoadBoundary = 3,       ///< the loaded part's boundary of the other side
};

/// The name of the enumerator, for example "RelativeToOppositeLoadBoundary"; "Unknown" for any other value.
QIV_DATAMODEL_TARVONEL_EXPORT const std::string& ToString(BoundaryOrigin value);

/// The enumerator of that name; `RelativeToCorrespondingMediaBoundary` for any other text,
/// so that an unknown word never makes a relative boundary absolute.
QIV_DATAMODEL_TARVONEL_EXPORT BoundaryOrigin ToBoundaryOrigin(const std::string& text);

/// The same for a text in any buffer; returns whether the text names an enumerator.
QIV_DATAMODEL_TARVONEL_EXPORT bool FromText(std::string_view text, BoundaryOrigin& value) noexcept;

/// Writes `ToString(value)`.
QIV_DATAMODEL_TARVONEL_EXPORT std::ostream& operator<<(std::ostream& stream, BoundaryOrigin value);

using BusinessEntityModel::BaseTypes::To;

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
