#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <Qiv/TimePoints/Details/EightCharacters.h>
#include <Qiv/TimePoints/Details/TimeCodeFields.h>
#include <Qiv/TimePoints/TimeCodeBuilder.h>

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

constexpr std::size_t dateLength = 11;  // "2016-03-21T"
constexpr std::size_t clockLength = 12; // "14:05:09:17@"

constexpr std::int32_t NumberAt(std::uint64_t numbers, int index) noexcept
{
    return static_cast<std::int32_t>((numbers >> (8 * index)) & 0xFF);
}

/// The last five characters of the first half are the first five of the second.
[[gnu::always_inline]] inline void ReadDate(const char* text, std::uint64_t& wrong, Details::Date& date) noexcept
{
    constexpr Details::Shape first("0000-00-", "99990190");
    constexpr Details::Shape second("0-00-00T", "90190390");
    const std::uint64_t numbers = first.Read(Details::LoadEight(text), wrong);
    wrong |= text[0] == '0' ? 1U : 0U;
    date.year = 100 * NumberAt(numbers, 0) + NumberAt(numbers, 2);
    date.month = NumberAt(numbers, 5);
    date.day = NumberAt(second.Read(Details::LoadEight(text + 3), wrong), 5);
}

/// The last four characters of the first half are the first four of the second.
[[gnu::always_inline]] inline void ReadClock(const char* text, std::uint64_t& wrong, Details::Clock& clock) noexcept
{
    constexpr Details::Shape first("00:00:00", "29059059");
    constexpr Details::Shape second("0:00:00@", "90591990");
    const std::uint64_t numbers = first.Read(Details::LoadEight(text), wrong);
    clock.hour = NumberAt(numbers, 0);
    clock.minute = NumberAt(numbers, 3);
    clock.second = NumberAt(numbers, 6);
    clock.sample = NumberAt(second.Read(Details::LoadEight(text + 4), wrong), 5);
}

/// Reads any text. Only when its form is right are the fields those of the text.
[[gnu::always_inline]] inline Form Read(std::string_view text, Details::TimeCodeFields& fields) noexcept
{
    const bool hasDate = text.size() > 4 && text[4] == '-';
    const std::size_t fixedLength = (hasDate ? dateLength : 0) + clockLength;
    if (text.size() <= fixedLength)
        return Form::Wrong;

    std::uint64_t wrong = 0;
    const char* clock = text.data() + fixedLength - clockLength;
    fields.date = {1950, 1, 1}; // without date, any valid one passes the checks
    if (hasDate)
        ReadDate(text.data(), wrong, fields.date);
    ReadClock(clock, wrong, fields.clock);
    fields.isDrop = clock[8] == ';';
    fields.hasDate = hasDate;
    if (wrong != 0)
        return Form::Wrong;

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
    if (Details::FirstFailedCheck(fields) == Details::Check::None)
        return Details::Build(fields);
    const auto& [date, clock, rate, isDrop, hasDate] = fields;
    return TimeCodeBuilder() // throws the text of the check
        .Date(date.year, date.month, date.day)
        .ClockTime(clock.hour, clock.minute, clock.second, clock.sample)
        .Rate(rate)
        .IsDrop(isDrop)
        .HasDate(hasDate)
        .Build();
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
