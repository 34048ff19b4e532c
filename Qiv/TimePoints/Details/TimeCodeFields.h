#pragma once

// The fields of which a time code is made, their checks, and making it: what the builder and the parser share.

#include <Qiv/TimePoints/CalendarTools.h>
#include <Qiv/TimePoints/Details/SampleArithmetic.h>
#include <Qiv/TimePoints/Rate.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <cstdint>

namespace Qiv::TimePoints::Details
{

struct TimeCodeFields
{
    Date date;
    Clock clock;
    Rate rate;
    bool isDrop;
    bool hasDate;
};

/// In the order in which the values are checked.
enum class Check
{
    Year,
    Month,
    Day,
    Hour,
    Minute,
    Second,
    Denominator,
    Sample,
    DropLabel,
    DropRate,
    None
};

constexpr std::int32_t minimumYear = 1900;
constexpr std::int32_t maximumYear = 2261;

constexpr bool IsWithin(std::int32_t value, std::int32_t first, std::int32_t last) noexcept
{
    return first <= value && value <= last;
}

/// The check that the fields do not pass, or `None`. The date is checked also when there is none.
constexpr Check FirstFailedCheck(const TimeCodeFields& fields) noexcept
{
    const auto& [date, clock, rate, isDrop, hasDate] = fields;
    const std::int64_t numerator = rate.Numerator();
    if (!IsWithin(date.year, minimumYear, maximumYear))
        return Check::Year;
    if (!IsWithin(date.month, 1, 12))
        return Check::Month;
    if (!IsWithin(date.day, 1, CalendarTools::DayPerMonth(date.year, date.month)))
        return Check::Day;
    if (!IsWithin(clock.hour, 0, 23))
        return Check::Hour;
    if (!IsWithin(clock.minute, 0, 59))
        return Check::Minute;
    if (!IsWithin(clock.second, 0, 59))
        return Check::Second;
    if (rate.Denominator() != 1)
        return Check::Denominator;
    if (clock.sample >= numerator) // a negative frame passes, on purpose
        return Check::Sample;
    if (!isDrop)
        return Check::None;
    // Every rate but 30 has the gap of 60 here, so that 25 may fail for a label before it fails for the rate.
    if (clock.minute % 10 != 0 && clock.second == 0 && clock.sample <= (numerator == 30 ? 1 : 3))
        return Check::DropLabel;
    return numerator == 30 || numerator == 60 ? Check::None : Check::DropRate;
}

/// @throws std::out_of_range with the text of the check that the fields do not pass
void ThrowIfNotValid(const TimeCodeFields& fields);

/// The time code of fields that pass the checks.
constexpr TimeCode Build(const TimeCodeFields& fields) noexcept
{
    const auto& [date, clock, rate, isDrop, hasDate] = fields;
    constexpr std::int64_t daysWithoutDate = DaysTo(1970, 1, 1);
    const std::int64_t days = hasDate ? DaysTo(date.year, date.month, date.day) : daysWithoutDate;
    return TimeCode(TotalSampleAt(rate.Numerator(), isDrop, days, clock), isDrop, rate, hasDate);
}

} // namespace Qiv::TimePoints::Details
