#include <TarvonelJson/Printable.h>

#include <algorithm>
#include <cstdint>

namespace TarvonelJson
{

namespace
{

/// A character at the start of a text; of length 0 when the bytes there are no well-formed UTF-8.
struct Character
{
    std::uint32_t codePoint = 0;
    std::size_t length = 0;
};

Character FirstCharacter(std::string_view text)
{
    const auto byte = [&](std::size_t index)
    { return static_cast<std::uint32_t>(static_cast<unsigned char>(text[index])); };
    const auto first = byte(0);
    if (first < 0x80)
        return {first, 1};
    const std::size_t length = first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
    if (length == 0 || length > text.size())
        return {};
    auto codePoint = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i)
    {
        if ((byte(i) & 0xC0) != 0x80)
            return {};
        codePoint = codePoint << 6 | (byte(i) & 0x3F);
    }
    constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest[length] || codePoint > 0x10FFFF || isSurrogate)
        return {};
    return {codePoint, length};
}

bool IsHarmless(std::uint32_t codePoint)
{
    constexpr struct
    {
        std::uint32_t first, last;
    } harmful[] = {
        {0x00, 0x1F},     {0x7F, 0x9F},     // controls
        {0x061C, 0x061C}, {0x200B, 0x200F}, // marks of direction, joiners
        {0x2028, 0x202E}, {0x2060, 0x206F}, // separators, embeddings and overrides, isolates
        {0xFEFF, 0xFEFF}, {0xFFF9, 0xFFFB}, // byte order mark, annotations
    };
    return std::none_of(std::begin(harmful), std::end(harmful),
                        [codePoint](const auto& range) { return range.first <= codePoint && codePoint <= range.last; });
}

/// The byte or UTF-16 unit in hexadecimal digits.
std::string Escape(const char* prefix, std::uint32_t value, unsigned digits)
{
    std::string escape = prefix;
    for (auto shift = 4 * digits; shift > 0; shift -= 4)
        escape += "0123456789abcdef"[value >> (shift - 4) & 0xF];
    return escape;
}

std::string Escaped(std::string_view text, bool keepsLayout)
{
    std::string escaped;
    escaped.reserve(text.size());
    while (!text.empty())
    {
        const auto clean = static_cast<std::size_t>(
            std::find_if(text.begin(), text.end(), [](char character) { return character < ' ' || character > '~'; }) -
            text.begin());
        escaped.append(text.substr(0, clean));
        text.remove_prefix(clean);
        if (text.empty())
            break;
        const auto [codePoint, length] = FirstCharacter(text);
        if (length == 0)
            escaped += Escape("\\x", static_cast<unsigned char>(text.front()), 2);
        else if (IsHarmless(codePoint) || (keepsLayout && codePoint < ' '))
            escaped.append(text.substr(0, length));
        else
            escaped += Escape("\\u", codePoint, 4);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return escaped;
}

bool StartsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

/// How many bytes the first or last `length` characters have, where bytes that start none belong to the one before.
std::size_t SizeOf(std::string_view text, std::size_t length, Keep keep)
{
    std::size_t size = 0;
    if (keep == Keep::Start)
    {
        for (std::size_t count = 0; size < text.size(); ++size)
        {
            count += StartsCharacter(text[size]) ? 1U : 0U;
            if (count > length)
                break;
        }
        return size;
    }
    for (std::size_t count = 0; size < text.size() && count < length; ++size)
        count += StartsCharacter(text[text.size() - 1 - size]) ? 1U : 0U;
    return size;
}

std::string_view Part(std::string_view text, std::size_t length, Keep keep)
{
    const auto size = SizeOf(text, length, keep);
    return keep == Keep::Start ? text.substr(0, size) : text.substr(text.size() - size);
}

} // namespace

std::string Printable(std::string_view text)
{
    return Escaped(text, false);
}

std::string PrintableJson(std::string_view json)
{
    return Escaped(json, true);
}

std::string Shortened(std::string_view text, std::size_t length, Keep keep)
{
    // Of a long text the rest need not be made printable; no character has more than four bytes, and none becomes none.
    const auto most = 4 * length + 4;
    const auto shown = text.size() <= most   ? text
                       : keep == Keep::Start ? text.substr(0, most)
                                             : text.substr(text.size() - most);
    auto printable = Printable(shown);
    const auto part = Part(printable, length, keep);
    if (part.size() == printable.size() && shown.size() == text.size())
        return printable;
    return keep == Keep::Start ? std::string(part) + "..." : "..." + std::string(part);
}

std::string ShortFileName(std::string_view name)
{
    return Shortened(name, 80, Keep::End);
}

} // namespace TarvonelJson
