#include <Qiv/TimePoints/QivDurationParser.h>

#include <Qiv/TimePoints/Details/Digits.h>
#include <Qiv/TimePoints/Details/Wrapping.h>

#include <charconv>
#include <cstdint>
#include <stdexcept>
#include <system_error>

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

    std::uint64_t value = 0;
    if (const auto number = Details::DigitsToNumber(text))
        value = *number;
    else
    {
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, value);
        if (stop != end || error == std::errc::invalid_argument)
            return false;
        if (error == std::errc::result_out_of_range)
        {
            duration = Duration(-1); // whatever the sign: what reading an unsigned number from a stream gives
            return true;
        }
    }
    const auto nanoseconds = Details::Wrap(value);
    duration = Duration(isNegative ? Details::WrappingSubtract(0, nanoseconds) : nanoseconds);
    return true;
}

} // namespace Qiv::TimePoints
