#include <FuzzInput.h>

#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>
#include <Qiv/TimePoints/TimeCode.h>
#include <Qiv/TimePoints/TimeCodeBuilder.h>

#include <optional>
#include <regex>
#include <stdexcept>

using namespace Fuzz;
using Qiv::TimePoints::QivTimeCodeFormatter;
using Qiv::TimePoints::QivTimeCodeParser;
using Qiv::TimePoints::Rate;
using Qiv::TimePoints::TimeCode;
using Qiv::TimePoints::TimeCodeBuilder;

namespace
{

constexpr std::size_t longest = 80; // the regular expressions are slow

/// Up to this rate 64 bits hold every count of the valid years; beyond it counts may wrap around.
constexpr std::int64_t highestRate = INT64_MAX / 86400 / (362 * 366);

/// The text of a time code, which all ways of formatting give.
std::string Format(const TimeCode& timeCode)
{
    char buffer[QivTimeCodeFormatter::MaximumLength];
    const auto text = QivTimeCodeFormatter().Format(timeCode);
    Check(QivTimeCodeFormatter::FormatTo(timeCode, buffer) == text, "FormatTo gives the same", text);
    Check(timeCode.ToString() == text, "ToString gives the same", text);
    return text;
}

/// Days from 1900-01-01, by counting them.
std::int64_t DaysTo(int year, int month, int day)
{
    const auto isLeap = [](int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; };
    std::int64_t days = day - 1;
    for (int y = 1900; y < year; ++y)
        days += isLeap(y) ? 366 : 365;
    for (int m = 1; m < month; ++m)
        days += m == 2 ? (isLeap(year) ? 29 : 28) : m == 4 || m == 6 || m == 9 || m == 11 ? 30 : 31;
    return days;
}

/// The count of samples of a label that exists: all labels before it less those that drop-frame counting skips. Wraps
/// around.
std::int64_t SampleAt(std::int64_t days, int hour, int minute, int second, int sample, std::int64_t rate, bool isDrop)
{
    const auto minutes = (days * 24 + hour) * 60 + minute;
    const auto skipped = isDrop ? (minutes - minutes / 10) * (rate / 15) : 0;
    const auto count = static_cast<std::uint64_t>(minutes * 60 + second) * static_cast<std::uint64_t>(rate);
    return static_cast<std::int64_t>(count + static_cast<std::uint64_t>(sample - skipped));
}

void CheckLabel(const TimeCode& timeCode, bool hasDate, int year, int month, int day, int hour, int minute, int second,
                int sample, std::int64_t rate, bool isDrop)
{
    const auto text = Format(timeCode);
    const auto days = hasDate ? DaysTo(year, month, day) : 25567; // 1970-01-01
    Check(timeCode.HasDate() == hasDate && timeCode.IsDrop() == isDrop && timeCode.Rate() == Rate(rate),
          "rate and flags are those given", text);
    Check(timeCode.TotalSample() == SampleAt(days, hour, minute, second, sample, rate, isDrop), "the count", text);
    if (rate > highestRate)
        return;
    Check(timeCode.Hour() == hour && timeCode.Minute() == minute && timeCode.Second() == second &&
              timeCode.Sample() == sample,
          "the clock time comes back", text);
    Check(hasDate ? timeCode.Year() == year && timeCode.Month() == month && timeCode.Day() == day
                  : timeCode.Year() == -1 && timeCode.Month() == -1 && timeCode.Day() == -1,
          "the date comes back", text);
    if (hasDate)
    {
        TimeCode again;
        Check(QivTimeCodeParser::TryRead(text, again) ? again == timeCode : sample > 99, "the text reads back", text);
    }
}

/// What `function` gives, or the text of its exception.
template <typename Error, typename Function>
std::optional<TimeCode> Try(Function function, std::string& message)
{
    try
    {
        return function();
    }
    catch (const Error& error)
    {
        message = error.what();
        return std::nullopt;
    }
}

void FuzzText(const std::string& text)
{
    static const std::regex dated(
        "^([1-9]\\d\\d\\d)-([0-1]\\d)-([0-3]\\d)T([0-2]\\d):([0-5]\\d):([0-5]\\d)(:|;)(\\d\\d)@(\\d+)$");
    static const std::regex undated("^([0-2]\\d):([0-5]\\d):([0-5]\\d)(:|;)(\\d\\d)@(\\d+)$");

    std::smatch match;
    const bool hasDate = std::regex_search(text, match, dated);
    const bool hasForm = hasDate || std::regex_search(text, match, undated);
    const auto group = [&](int i) { return std::stoi(match[static_cast<std::size_t>(i)].str()); };
    const int first = hasDate ? 4 : 1;

    int rate = 0;
    bool isRateTooLarge = false;
    std::string expectedMessage;
    std::optional<TimeCode> expected;
    if (hasForm)
    {
        try
        {
            rate = group(first + 5);
        }
        catch (const std::out_of_range&)
        {
            isRateTooLarge = true;
            expectedMessage = "stoi";
        }
    }
    else
        expectedMessage = ("QivTimeCodeParser the string '" + text + "' has not the expected format.").c_str();
    const bool isDrop = hasForm && match[static_cast<std::size_t>(first + 3)].str() == ";";
    if (hasForm && !isRateTooLarge)
    {
        TimeCodeBuilder builder;
        builder.Date(hasDate ? group(1) : 1950, hasDate ? group(2) : 1, hasDate ? group(3) : 1).HasDate(hasDate);
        builder.ClockTime(group(first), group(first + 1), group(first + 2), group(first + 4));
        builder.Rate(Rate(rate)).IsDrop(isDrop);
        expected = Try<std::out_of_range>([&] { return builder.Build(); }, expectedMessage);
    }

    const QivTimeCodeParser parser;
    std::string message;
    const auto parse = [&] { return parser.Parse(text); };
    const auto parsed = hasForm ? Try<std::out_of_range>(parse, message) : Try<std::invalid_argument>(parse, message);
    Check(parsed == expected, "Parse reads what the expression does", text);
    Check(message == expectedMessage, "Parse fails with the text of the builder", message, expectedMessage);

    std::string formMessage;
    const auto isValid = Try<std::out_of_range>(
        [&] { return parser.IsStringFormatValid(text) ? TimeCode(1, 2, 3, 4, Rate(25), false) : TimeCode(); },
        formMessage);
    Check(isValid.has_value() != isRateTooLarge, "the check throws for rates that are too large", text, formMessage);
    Check((isValid && !isValid->IsEmpty()) == expected.has_value(), "the check knows what Parse reads", text);

    const auto [succeeds, tried] = parser.TryParse(text);
    Check(succeeds == expected.has_value() && tried == expected.value_or(TimeCode::Empty()), "TryParse agrees", text);
    const TimeCode untouched(-1, false, Rate(7), false);
    auto read = untouched;
    Check(QivTimeCodeParser::TryRead(ExactCopy(text).Text(), read) == expected.has_value() &&
              read == expected.value_or(untouched),
          "TryRead agrees", text);

    if (expected)
        CheckLabel(*expected, hasDate, hasDate ? group(1) : 0, hasDate ? group(2) : 0, hasDate ? group(3) : 0,
                   group(first), group(first + 1), group(first + 2), group(first + 4), rate, isDrop);
}

/// A builder with any fields: small ones, so that most pass, or the bytes as they come.
void FuzzBuilder(Input& input)
{
    const auto flags = input.Byte();
    const bool isSmall = (flags & 1U) != 0;
    const bool hasDate = (flags & 2U) != 0;
    const bool isDrop = (flags & 4U) != 0;
    const auto field = [&](std::int32_t from, std::int32_t count)
    {
        return isSmall ? from + static_cast<std::int32_t>(input.Number<std::uint16_t>() % count)
                       : input.Number<std::int32_t>();
    };
    const auto year = field(1899, 364);
    const auto month = field(0, 14);
    const auto day = field(0, 33);
    const auto hour = field(-1, 26);
    const auto minute = field(-1, 62);
    const auto second = field(-1, 62);
    const auto sample = field(0, 62);
    const std::int64_t rates[] = {30, 60, 25, 50, 24, 1, 120, input.Number<std::int64_t>()};
    const Rate rate(rates[flags >> 5U], (flags & 8U) != 0 ? input.Number<std::int64_t>() : 1);

    TimeCodeBuilder builder;
    builder.Date(year, month, day).ClockTime(hour, minute, second, sample).Rate(rate).IsDrop(isDrop).HasDate(hasDate);
    std::string message;
    const auto built = Try<std::out_of_range>([&] { return builder.Build(); }, message);
    Check(builder.IsValidToBuild() == built.has_value(), "both operations agree", message);
    // A negative frame passes, and an exotic rate may be out of what the arithmetic holds.
    if (built && sample >= 0 && rate.Numerator() <= INT32_MAX)
        CheckLabel(*built, hasDate, year, month, day, hour, minute, second, sample, rate.Numerator(), isDrop);
    auto unchecked = TimeCode(0, isDrop, rate, hasDate);
    unchecked.DateTimeToSample(year, month, day, hour, minute, second, sample);
    static_cast<void>(Format(unchecked));
}

/// A time code with any count and rate.
void FuzzCount(Input& input)
{
    const auto flags = input.Byte();
    const std::int64_t rates[] = {30,
                                  60,
                                  25,
                                  50,
                                  input.Byte(),
                                  input.Number<std::int16_t>(),
                                  input.Number<std::int32_t>(),
                                  input.Number<std::int64_t>()};
    const Rate rate(rates[flags >> 5U], (flags & 1U) != 0 ? input.Number<std::int64_t>() : 1);
    const auto count = (flags & 2U) != 0 ? input.Number<std::int64_t>() : input.Number<std::int64_t>() >> 24U;
    TimeCode timeCode(count, (flags & 4U) != 0, rate, (flags & 8U) != 0);
    const auto text = Format(timeCode);
    const auto n = rate.Numerator();
    const auto perDay = timeCode.SamplePerDay();

    Check((timeCode + 1) - timeCode == 1 && --(++timeCode) == timeCode, "counting", text);
    const auto other = timeCode - input.Number<std::int64_t>();
    Check((timeCode < other) + (other < timeCode) + (timeCode == other) == 1, "exactly one order holds", text);
    static_cast<void>(timeCode.AddSkippedHmsSamplesInNtscDrop(input.Number<std::int64_t>()));

    // What the label of a valid count is, is known.
    if (n < 1 || n > INT32_MAX || count < 0 || count / perDay >= DaysTo(2262, 1, 1))
        return;
    const TimeCode dated(count, timeCode.IsDrop(), Rate(n), true);
    CheckLabel(dated, true, dated.Year(), dated.Month(), dated.Day(), dated.Hour(), dated.Minute(), dated.Second(),
               dated.Sample(), n, dated.IsDrop());
}

} // namespace

/// The time-code parser against the regular expressions that define its texts, and time codes of any fields against
/// counting by hand.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    switch (input.Byte())
    {
    case 'b':
        FuzzBuilder(input);
        break;
    case 'c':
        FuzzCount(input);
        break;
    default:
        if (size <= longest)
            FuzzText(std::string(Input(data, size).Rest()));
    }
    return 0;
}
