#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/EnumerationTexts.h>
#include <Qiv/DataModel/Tarvonel/Export.h>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// What a player channel does at the end of what it plays.
enum class PlayingLoopMode : std::int32_t
{
    Unknown = 0,
    None = 1,   ///< plays once
    Loop = 2,   ///< starts again
    Bounce = 3, ///< turns round
};

/// The name of the enumerator, for example "Bounce"; "Unknown" for any other value.
QIV_DATAMODEL_TARVONEL_EXPORT const std::string& ToString(PlayingLoopMode value);

/// The enumerator of that name; `Unknown` for any other text.
QIV_DATAMODEL_TARVONEL_EXPORT PlayingLoopMode ToPlayingLoopMode(const std::string& text);

/// The same for a text in any buffer; returns whether the text names an enumerator.
QIV_DATAMODEL_TARVONEL_EXPORT bool FromText(std::string_view text, PlayingLoopMode& value) noexcept;

/// Writes `ToString(value)`.
QIV_DATAMODEL_TARVONEL_EXPORT std::ostream& operator<<(std::ostream& stream, PlayingLoopMode value);

using BusinessEntityModel::BaseTypes::To;

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
