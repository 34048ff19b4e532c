#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>

#include <cstddef>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// A place in a text, as editors count: lines and columns from 1, columns in bytes.
struct TextPosition
{
    std::size_t line = 1;
    std::size_t column = 1;
};

/// The place of the byte at `offset`, for example of `Finding::offset`; an offset outside of the text counts as the
/// nearest one inside. A line ends with "\n", "\r\n" or "\r".
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextPosition PositionOf(std::string_view text,
                                                                    std::ptrdiff_t offset) noexcept;

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
