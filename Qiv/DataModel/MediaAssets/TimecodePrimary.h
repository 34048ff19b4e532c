#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/EnumerationTexts.h>
#include <Qiv/DataModel/MediaAssets/Export.h>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace Qiv::DataModel::MediaAssets
{

/// Which time code of a recording is the primary one.
enum class TimecodePrimary : std::int32_t
{
    NotSet = 0,
    Tod = 1,  ///< the time-of-day time code
    User = 2, ///< the user time code
};

/// The name of the enumerator, for example "User"; "Unknown" for any other value.
QIV_DATAMODEL_MEDIAASSETS_EXPORT const std::string& ToString(TimecodePrimary value);

/// The enumerator of that name; `NotSet` for any other text.
QIV_DATAMODEL_MEDIAASSETS_EXPORT TimecodePrimary ToTimecodePrimary(const std::string& text);

/// The same for a text in any buffer; returns whether the text names an enumerator.
QIV_DATAMODEL_MEDIAASSETS_EXPORT bool FromText(std::string_view text, TimecodePrimary& value) noexcept;

/// Writes `ToString(value)`.
QIV_DATAMODEL_MEDIAASSETS_EXPORT std::ostream& operator<<(std::ostream& stream, TimecodePrimary value);

using BusinessEntityModel::BaseTypes::To;

} // namespace Qiv::DataModel::MediaAssets
