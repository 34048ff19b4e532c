#pragma once

#include <cstdint>

namespace Qiv::TimePoints
{

/// The lengths of years and months in the Gregorian calendar.
class CalendarTools
{
public:
    /// A year is a leap year when 4 divides it, except those that 100 divides and 400 does not.
    static constexpr bool IsLeapYear(int year) noexcept
    {
        return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    }

    /// The number of days of `month` (1 to 12); 0 for any other month.
    static constexpr std::int32_t DayPerMonth(int year, int month) noexcept
    {
        return DayPerMonth(IsLeapYear(year), month);
    }

    /// The number of days of `month` (1 to 12) in a leap year or in a common one; 0 for any other month.
    static constexpr std::int32_t DayPerMonth(bool leap, int month) noexcept
    {
        return month < 1 || month > 12 ? 0 : dayPerMonth[leap ? 1 : 0][month - 1];
    }

private:
    static constexpr std::int32_t dayPerMonth[2][12] = {{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
                                                        {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}};
};

} // namespace Qiv::TimePoints
