#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <Qiv/TimePoints/Details/Digits.h>
#include <Qiv/TimePoints/Details/TimeCodeFields.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace Qiv::TimePoints
{
namespace
{

enum class Form
{
    Wrong,
    RateTooLarge,
    Right
};

constexpr std::size_t dateLength = std::string_view("2016-03-21T").size();
constexpr std::size_t clockLength = std::string_view("14:05:09:17@").size();

/// Reads two digits, the first of which is at most `highestTens`; false when there is anything else.
bool ReadTwoDigits(const char* text, unsigned highestTens, std::int32_t& number) noexcept
{
    const unsigned tens = Details::DigitValue(text[0]);
    const unsigned ones = Details::DigitValue(text[1]);
    if (tens > highestTens || ones > 9)
        return false;
    number = static_cast<std::int32_t>(10 * tens + ones);
    return true;
}

bool ReadDate(const char* text, Details::Date& date) noexcept
{
    std::int32_t century = 0;
    std::int32_t year = 0;
    const bool hasForm = text[0] != '0' && ReadTwoDigits(text, 9, century) && ReadTwoDigits(text + 2, 9, year) &&
                         text[4] == '-' && ReadTwoDigits(text + 5, 1, date.month) && text[7] == '-' &&
                         ReadTwoDigits(text + 8, 3, date.day) && text[10] == 'T';
    date.year = 100 * century + year;
    return hasForm;
}

bool ReadClock(const char* text, Details::Clock& clock) noexcept
{
    return ReadTwoDigits(text, 2, clock.hour) && text[2] == ':' && ReadTwoDigits(text + 3, 5, clock.minute) &&
           text[5] == ':' && ReadTwoDigits(text + 6, 5, clock.second) && (text[8] == ':' || text[8] == ';') &&
           ReadTwoDigits(text + 9, 9, clock.sample) && text[11] == '@';
}

/// Reads any text. Only when its form is right are the fields those of the text.
Form Read(std::string_view text, Details::TimeCodeFields& fields) noexcept
{
    fields.hasDate = text.size() > 4 && text[4] == '-';
    const std::size_t fixedLength = (fields.hasDate ? dateLength : 0) + clockLength;
    if (text.size() <= fixedLength)
        return Form::Wrong;

    fields.date = {1950, 1, 1}; // without date, any valid one passes the checks
    if (fields.hasDate && !ReadDate(text.data(), fields.date))
        return Form::Wrong;
    const char* const clock = text.data() + fixedLength - clockLength;
    if (!ReadClock(clock, fields.clock))
        return Form::Wrong;
    fields.isDrop = clock[8] == ';';

    std::int64_t rate = 0; // stays above INT32_MAX once it is, however many digits follow
    for (const char character : text.substr(fixedLength))
    {
        const unsigned digit = Details::DigitValue(character);
        if (digit > 9)
            return Form::Wrong;
        if (rate <= INT32_MAX)
            rate = 10 * rate + digit;
    }
    fields.rate = Rate(rate);
    return rate > INT32_MAX ? Form::RateTooLarge : Form::Right;
}

/// The same for callers that throw for a rate that is too large, before any other value is checked.
bool ReadOrThrow(const std::string& text, Details::TimeCodeFields& fields)
{
    const Form form = Read(text, fields);
    if (form == Form::RateTooLarge)
        throw std::out_of_range("stoi"); // the whole text is that of std::stoi: callers know it
    return form == Form::Right;
}

} // namespace

QivTimeCodeParser::~QivTimeCodeParser() = default;

TimeCode QivTimeCodeParser::Parse(const std::string& text) const
{
    Details::TimeCodeFields fields;
    if (!ReadOrThrow(text, fields))
        throw std::invalid_argument("QivTimeCodeParser the string '" + text + "' has not the expected format.");
    Details::ThrowIfNotValid(fields);
    return Details::Build(fields);
}

bool QivTimeCodeParser::IsStringFormatValid(const std::string& text) const
{
    Details::TimeCodeFields fields;
    return ReadOrThrow(text, fields) && Details::FirstFailedCheck(fields) == Details::Check::None;
}

std::pair<bool, TimeCode> QivTimeCodeParser::TryParse(const std::string& text) const noexcept
{
    try
    {
        return {true, Parse(text)};
    }
    catch (...)
    {
        return {false, TimeCode::Empty()};
    }
}

bool QivTimeCodeParser::TryRead(std::string_view text, TimeCode& timeCode) noexcept
{
    Details::TimeCodeFields fields;
    if (Read(text, fields) != Form::Right || Details::FirstFailedCheck(fields) != Details::Check::None)
        return false;
    timeCode = Details::Build(fields);
    return true;
}

std::int32_t QivTimeCodeParser::StringToInt(const std::string& text) const
{
    return std::stoi(text);
}

} // namespace Qiv::TimePoints
