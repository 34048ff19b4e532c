#pragma once

// Days since 1900-01-01 and Gregorian dates, in closed form.

#include <Qiv/TimePoints/CalendarTools.h>

#include <cstdint>

namespace Qiv::TimePoints::Details
{

struct Date
{
    std::int32_t year;
    std::int32_t month;
    std::int32_t day;
};

inline constexpr std::int32_t daysBeforeMonth[2][13] = {{0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365},
                                                        {0, 31, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335, 366}};

/// The leap years among the years 1 to `year`.
constexpr std::int32_t LeapYearsTo(std::int32_t year) noexcept
{
    return year / 4 - year / 100 + year / 400;
}

/// The days from 1900-01-01 to a date whose values may be any.
constexpr std::int64_t DaysTo(std::int32_t year, std::int32_t month, std::int32_t day) noexcept
{
    const std::int32_t lastYear = (year > 1900 ? year : 1900) - 1;                 // [1899, 2147483646]
    const std::int32_t leapYears = LeapYearsTo(lastYear) - LeapYearsTo(1899);      // those from 1900 on
    const std::int32_t monthIndex = month < 1 ? 0 : (month > 13 ? 12 : month - 1); // [0, 12]
    return std::int64_t{lastYear - 1899} * 365 + leapYears +
           daysBeforeMonth[CalendarTools::IsLeapYear(year) ? 1 : 0][monthIndex] + (std::int64_t{day} - 1);
}

inline constexpr std::uint32_t daysPer4Years = 4 * 365 + 1;
inline constexpr std::uint32_t daysPer100Years = 25 * daysPer4Years - 1;
inline constexpr std::uint32_t daysPer400Years = 4 * daysPer100Years + 1;
/// From 0000-03-01 to 1900-01-01: the years 1 to 1899, and the year 0 without January and February.
inline constexpr std::uint32_t daysBefore1900 = 1899 * 365 + LeapYearsTo(1899) + 366 - (31 + 29);

/// The date `days` after 1900-01-01. The years begin in March here, so that the leap day is the last of its year.
constexpr Date DateAfter(std::uint32_t days) noexcept // at most INT32_MAX
{
    const std::uint32_t shifted = days + daysBefore1900;
    const std::uint32_t cycle = shifted / daysPer400Years;
    const std::uint32_t dayOfCycle = shifted % daysPer400Years;
    const std::uint32_t yearOfCycle = (dayOfCycle - dayOfCycle / (daysPer4Years - 1) + dayOfCycle / daysPer100Years -
                                       dayOfCycle / (daysPer400Years - 1)) /
                                      365;                                                                  // [0, 399]
    const std::uint32_t dayOfYear = dayOfCycle - (365 * yearOfCycle + yearOfCycle / 4 - yearOfCycle / 100); // [0, 365]
    const std::uint32_t marchMonth = (5 * dayOfYear + 2) / 153;                    // [0, 11], 0 is March
    const std::uint32_t day = dayOfYear - (153 * marchMonth + 2) / 5 + 1;          // [1, 31]
    const std::uint32_t month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9; // [1, 12]
    const std::uint32_t year = 400 * cycle + yearOfCycle + (month <= 2 ? 1 : 0);
    return {static_cast<std::int32_t>(year), static_cast<std::int32_t>(month), static_cast<std::int32_t>(day)};
}

/// The same for any number; before 1900 the date is January 1900 with a day below 1. Only the lower 32 bits are kept of
/// a year or day that has more.
constexpr Date DateAfter(std::int64_t days) noexcept
{
    if (days < 0)
        return {1900, 1, static_cast<std::int32_t>(days + 1)};
    if (days <= INT32_MAX)
        return DateAfter(static_cast<std::uint32_t>(days));
    Date date = DateAfter(static_cast<std::uint32_t>(days % daysPer400Years));
    date.year = static_cast<std::int32_t>(date.year + days / daysPer400Years * 400);
    return date;
}

} // namespace Qiv::TimePoints::Details
