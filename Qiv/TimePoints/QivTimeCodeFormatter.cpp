#include <Qiv/TimePoints/QivTimeCodeFormatter.h>

#include <Qiv/TimePoints/Details/SampleArithmetic.h>
#include <Qiv/TimePoints/Details/Text.h>

namespace Qiv::TimePoints
{
namespace
{

char* WriteUnusual(std::int32_t value, char* out) noexcept
{
    if (value < 0)
        *out++ = '0';
    return Details::WriteDecimal(std::int64_t{value}, out);
}

/// A "0" stands before every value below 10, negative ones included.
inline char* WritePadded(std::int32_t value, char* out) noexcept
{
    const auto unsignedValue = static_cast<std::uint32_t>(value);
    return unsignedValue < 100 ? Details::WriteTwoDigits(unsignedValue, out) : WriteUnusual(value, out);
}

char* WriteYear(std::int32_t year, char* out) noexcept
{
    if (year < 1000 || year > 9999)
        return Details::WriteDecimal(std::int64_t{year}, out);
    const auto value = static_cast<std::uint32_t>(year);
    return Details::WriteTwoDigits(value % 100, Details::WriteTwoDigits(value / 100, out));
}

} // namespace

QivTimeCodeFormatter::~QivTimeCodeFormatter() = default;

std::string QivTimeCodeFormatter::Format(const TimeCode& timeCode) const
{
    char buffer[MaximumLength];
    return std::string(FormatTo(timeCode, buffer));
}

std::string_view QivTimeCodeFormatter::FormatTo(const TimeCode& timeCode, char* buffer) noexcept
{
    const std::int64_t rate = timeCode.Rate().Numerator();
    const auto [date, clock] = Details::LabelOf(rate, timeCode.IsDrop(), timeCode.TotalSample());
    const auto [year, month, day] = timeCode.HasDate() ? date : Details::Date{-1, -1, -1};

    char* end = WriteYear(year, buffer);
    *end++ = '-';
    end = WritePadded(month, end);
    *end++ = '-';
    end = WritePadded(day, end);
    *end++ = 'T';
    end = WritePadded(clock.hour, end);
    *end++ = ':';
    end = WritePadded(clock.minute, end);
    *end++ = ':';
    end = WritePadded(clock.second, end);
    *end++ = timeCode.IsDrop() ? ';' : ':';
    end = WritePadded(clock.sample, end);
    *end++ = '@';
    end =
        rate >= 10 && rate < 100 ? WritePadded(static_cast<std::int32_t>(rate), end) : Details::WriteDecimal(rate, end);
    return std::string_view(buffer, static_cast<std::size_t>(end - buffer));
}

} // namespace Qiv::TimePoints
