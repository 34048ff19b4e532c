#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Quote.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Utf8.h>

#include <cstddef>
#include <iterator>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

namespace
{

struct Range
{
    char32_t first;
    char32_t last;
};

// Controls, marks of direction, separators of lines and other characters that cannot be seen.
constexpr Range escaped[] = {{0, 0x1F},        {0x7F, 0x9F},     {0xAD, 0xAD},     {0x61C, 0x61C},
                             {0x180E, 0x180E}, {0x200B, 0x200F}, {0x2028, 0x202E}, {0x2060, 0x206F},
                             {0xFEFF, 0xFEFF}, {0xFFF9, 0xFFFB}, {0xFFFE, 0xFFFF}, {0xE0000, 0xE0FFF}};

bool IsEscaped(char32_t character) noexcept
{
    for (const auto& range : escaped)
        if (character >= range.first && character <= range.last)
            return true;
    return false;
}

void AppendHexadecimal(std::string& text, const char* before, char32_t value, unsigned digits)
{
    text += before;
    for (; digits != 0; --digits)
        text += "0123456789abcdef"[value >> (4 * (digits - 1)) & 0xFU];
}

// The character as it is shown, and how many bytes of the text it takes.
std::size_t Show(std::string_view text, std::string& shown)
{
    const auto character = FirstCharacter(text);
    shown.clear();
    if (character.size == 0)
    {
        AppendHexadecimal(shown, "\\x", character.value, 2);
        return 1;
    }
    if (character.value == '"' || character.value == '\\')
        shown.append(1, '\\').append(text.substr(0, 1));
    else if (character.value == '\n')
        shown = "\\n";
    else if (character.value == '\r')
        shown = "\\r";
    else if (character.value == '\t')
        shown = "\\t";
    else if (!IsEscaped(character.value))
        shown = text.substr(0, character.size);
    else if (character.value < 0x10000)
        AppendHexadecimal(shown, "\\u", character.value, 4);
    else
    {
        AppendHexadecimal(shown, "\\u", 0xD800 + ((character.value - 0x10000) >> 10U), 4);
        AppendHexadecimal(shown, "\\u", 0xDC00 + (character.value & 0x3FFU), 4);
    }
    return character.size;
}

} // namespace

std::string Quote(std::string_view text, std::size_t longest)
{
    std::string quoted = "\"", shown;
    std::size_t count = 2;           // characters, the closing quote among them
    std::size_t cut = quoted.size(); // where the text is cut when it does not end in time
    while (!text.empty())
    {
        text.remove_prefix(Show(text, shown));
        const bool isAscii = static_cast<unsigned char>(shown.front()) < 0x80;
        count += isAscii ? shown.size() : 1;
        if (count > longest)
            return quoted.substr(0, cut) + "\"...";
        quoted += shown;
        if (count + 3 <= longest)
            cut = quoted.size();
    }
    return quoted += '"';
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
