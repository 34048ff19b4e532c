#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/EnumerationTexts.h>
#include <Qiv/DataModel/Tarvonel/Export.h>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// The state of a player channel.
enum class PlayingStatus : std::int32_t
{
    Idle = 0,
    Live = 1,
    Empty = 2,
    Cueing = 3,
    Ready = 4,
    Playing = 5,
};

/// The name of the enumerator, for example "Playing"; "Unknown" for any other value.
QIV_DATAMODEL_TARVONEL_EXPORT const std::string& ToString(PlayingStatus value);

/// The enumerator of that name; `Idle` for any other text.
QIV_DATAMODEL_TARVONEL_EXPORT PlayingStatus ToPlayingStatus(const std::string& text);

/// The same for a text in any buffer; returns whether the text names an enumerator.
QIV_DATAMODEL_TARVONEL_EXPORT bool FromText(std::string_view text, PlayingStatus& value) noexcept;

/// Writes `ToString(value)`.
QIV_DATAMODEL_TARVONEL_EXPORT std::ostream& operator<<(std::ostream& stream, PlayingStatus value);

using BusinessEntityModel::BaseTypes::To;

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
