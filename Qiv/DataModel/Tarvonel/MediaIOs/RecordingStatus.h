#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/EnumerationTexts.h>
#include <Qiv/DataModel/Tarvonel/Export.h>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// The state of a recorder channel.
enum class RecordingStatus : std::int32_t
{
    Idle = 0,
    Pause = 1,
    Recording = 2,
};

/// The name of the enumerator, for example "Recording"; "Unknown" for any other value.
QIV_DATAMODEL_TARVONEL_EXPORT const std::string& ToString(RecordingStatus value);

/// The enumerator of that name; `Idle` for any other text.
QIV_DATAMODEL_TARVONEL_EXPORT RecordingStatus ToRecordingStatus(const std::string& text);

/// The same for a text in any buffer; returns whether the text names an enumerator.
QIV_DATAMODEL_TARVONEL_EXPORT bool FromText(std::string_view text, RecordingStatus& value) noexcept;

/// Writes `ToString(value)`.
QIV_DATAMODEL_TARVONEL_EXPORT std::ostream& operator<<(std::ostream& stream, RecordingStatus value);

using BusinessEntityModel::BaseTypes::To;

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
