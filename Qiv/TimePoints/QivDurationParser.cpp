#include <Qiv/TimePoints/QivDurationParser.h>

#include <Qiv/TimePoints/Details/EightCharacters.h>

#include <cstdint>
#include <stdexcept>

namespace Qiv::TimePoints
{

QivDurationParser::~QivDurationParser() = default;

Duration QivDurationParser::Parse(const std::string& text) const
{
    Duration duration;
    if (!TryRead(text, duration))
        throw std::invalid_argument("QivDurationParser the string '" + text + "' is not an integer.");
    return duration;
}

bool QivDurationParser::IsStringFormatValid(const std::string& text) const
{
    Duration ignored;
    return TryRead(text, ignored);
}

std::pair<bool, Duration> QivDurationParser::TryParse(const std::string& text) const noexcept
{
    try
    {
        return {true, Parse(text)};
    }
    catch (...)
    {
        return {false, Duration::Empty()};
    }
}

bool QivDurationParser::TryRead(std::string_view text, Duration& duration) noexcept
{
    const bool isNegative = !text.empty() && text[0] == '-';
    if (isNegative || (!text.empty() && text[0] == '+'))
        text.remove_prefix(1);
    if (text.empty())
        return false;

    std::uint64_t value = 0;
    bool isTooLarge = false;
    if (text.size() >= 8 && text.size() <= 19) // cannot be too large
    {
        std::uint64_t wrong = 0;
        value = Details::ReadDigits(text, wrong);
        if (wrong != 0)
            return false;
    }
    else
    {
        for (const char character : text)
        {
            const unsigned digit = Details::DigitValue(character);
            if (digit > 9)
                return false;
            isTooLarge |= value > UINT64_MAX / 10 || (value == UINT64_MAX / 10 && digit > UINT64_MAX % 10);
            value = 10 * value + digit;
        }
    }
    if (isTooLarge)
        value = UINT64_MAX; // whatever the sign: what reading an unsigned number from a stream gives
    else if (isNegative)
        value = 0 - value;
    duration = Duration(static_cast<std::int64_t>(value));
    return true;
}

} // namespace Qiv::TimePoints
