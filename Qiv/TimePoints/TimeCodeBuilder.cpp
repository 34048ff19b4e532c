#include <Qiv/TimePoints/TimeCodeBuilder.h>

#include <Qiv/TimePoints/CalendarTools.h>
#include <Qiv/TimePoints/Details/TimeCodeFields.h>

#include <stdexcept>
#include <string>

namespace Qiv::TimePoints
{

using Details::Check;

bool TimeCodeBuilder::IsValidToBuildWithexception() const
{
    using std::to_string;
    switch (Details::FirstFailedCheck(Fields()))
    {
    case Check::Year:
        throw std::out_of_range("year " + to_string(year_) + " must be between " + to_string(Details::minimumYear) +
                                " and " + to_string(Details::maximumYear));
    case Check::Month:
        throw std::out_of_range("month " + to_string(month_) + " must be between 1 and 12");
    case Check::Day: // no blank after the number: the text is known by that
        throw std::out_of_range("day " + to_string(day_) + "is negative or greater than " +
                                to_string(CalendarTools::DayPerMonth(year_, month_)) + " in month " +
                                to_string(month_));
    case Check::Hour:
        throw std::out_of_range("hour " + to_string(hour_) + " must be between 0 and 23");
    case Check::Minute:
        throw std::out_of_range("minute " + to_string(minute_) + " must be between 0 and 59");
    case Check::Second:
        throw std::out_of_range("second " + to_string(second_) + " must be between 0 and 59");
    case Check::Denominator:
        throw std::out_of_range("Denominator " + to_string(rate_.Denominator()) + " must be between equals to 1");
    case Check::Sample: // "greater", though equal fails too
        throw std::out_of_range("Sample " + to_string(sample_) + " is greater than numerator ratio " +
                                to_string(rate_.Numerator()));
    case Check::DropLabel:
        throw std::out_of_range("In dropped TimeCode, this value doesn't exist " + to_string(minute_) + ":" +
                                to_string(second_) + ";" + to_string(sample_));
    case Check::DropRate:
        throw std::out_of_range("Rate " + to_string(rate_.Numerator()) + " / " + to_string(rate_.Denominator()) +
                                " is not compatible with drop TC format");
    case Check::None:
        break;
    }
    return true;
}

bool TimeCodeBuilder::IsValidToBuild() const noexcept
{
    return Details::FirstFailedCheck(Fields()) == Check::None;
}

TimeCode TimeCodeBuilder::Build() const
{
    return IsValidToBuildWithexception() ? Details::Build(Fields()) : TimeCode::Empty();
}

bool TimeCodeBuilder::TryBuild(TimeCode& timeCode) const noexcept
{
    if (!IsValidToBuild())
        return false;
    timeCode = Details::Build(Fields());
    return true;
}

Details::TimeCodeFields TimeCodeBuilder::Fields() const noexcept
{
    return {{year_, month_, day_}, {hour_, minute_, second_, sample_}, rate_, isDrop_, hasDate_};
}

} // namespace Qiv::TimePoints
