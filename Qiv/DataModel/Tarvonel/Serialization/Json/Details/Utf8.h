#pragma once

#include <cstddef>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

/// A character of a text in UTF-8.
struct Utf8Character
{
    char32_t value;
    std::size_t size; ///< in bytes; 0 when the text does not begin with a well-formed character
};

/// The first character of a text that is not empty.
inline Utf8Character FirstCharacter(std::string_view text) noexcept
{
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < size)
        return {lead, 0};
    char32_t value = lead & (0x7FU >> size);
    for (std::size_t i = 1; i < size; ++i)
    {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80)
            return {lead, 0};
        value = value << 6U | (next & 0x3FU);
    }
    const bool isOverlong = value < (size == 3 ? 0x800U : size == 4 ? 0x10000U : 0x80U);
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    if (isOverlong || isSurrogate || value > 0x10FFFF)
        return {lead, 0};
    return {value, size};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
