#include <Qiv/TimePoints/Details/TimeCodeFields.h>

#include <stdexcept>
#include <string>

namespace Qiv::TimePoints::Details
{

void ThrowIfNotValid(const TimeCodeFields& fields)
{
    using std::to_string;
    const auto& [date, clock, rate, isDrop, hasDate] = fields;
    switch (FirstFailedCheck(fields))
    {
    case Check::Year:
        throw std::out_of_range("year " + to_string(date.year) + " must be between " + to_string(minimumYear) +
                                " and " + to_string(maximumYear));
    case Check::Month:
        throw std::out_of_range("month " + to_string(date.month) + " must be between 1 and 12");
    case Check::Day: // no blank after the number: the text is known by that
        throw std::out_of_range("day " + to_string(date.day) + "is negative or greater than " +
                                to_string(CalendarTools::DayPerMonth(date.year, date.month)) + " in month " +
                                to_string(date.month));
    case Check::Hour:
        throw std::out_of_range("hour " + to_string(clock.hour) + " must be between 0 and 23");
    case Check::Minute:
        throw std::out_of_range("minute " + to_string(clock.minute) + " must be between 0 and 59");
    case Check::Second:
        throw std::out_of_range("second " + to_string(clock.second) + " must be between 0 and 59");
    case Check::Denominator:
        throw std::out_of_range("Denominator " + to_string(rate.Denominator()) + " must be between equals to 1");
    case Check::Sample: // "greater", though equal fails too
        throw std::out_of_range("Sample " + to_string(clock.sample) + " is greater than numerator ratio " +
                                to_string(rate.Numerator()));
    case Check::DropLabel:
        throw std::out_of_range("In dropped TimeCode, this value doesn't exist " + to_string(clock.minute) + ":" +
                                to_string(clock.second) + ";" + to_string(clock.sample));
    case Check::DropRate:
        throw std::out_of_range("Rate " + to_string(rate.Numerator()) + " / " + to_string(rate.Denominator()) +
                                " is not compatible with drop TC format");
    case Check::None:
        break;
    }
}

} // namespace Qiv::TimePoints::Details
