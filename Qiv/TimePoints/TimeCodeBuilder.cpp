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
    const auto fail = [](const std::string& text) { throw std::out_of_range(text); };
    switch (Details::FirstFailedCheck(Fields()))
    {
    case Check::Year:
        fail("year " + to_string(year_) + " must be between " + to_string(Details::minimumYear) + " and " +
             to_string(Details::maximumYear));
        break;
    case Check::Month:
        fail("month " + to_string(month_) + " must be between 1 and 12");
        break;
    case Check::Day: // no blank after the number: the text is known by that
        fail("day " + to_string(day_) + "is negative or greater than " +
             to_string(CalendarTools::DayPerMonth(year_, month_)) + " in month " + to_string(month_));
        break;
    case Check::Hour:
        fail("hour " + to_string(hour_) + " must be between 0 and 23");
        break;
    case Check::Minute:
        fail("minute " + to_string(minute_) + " must be between 0 and 59");
        break;
    case Check::Second:
        fail("second " + to_string(second_) + " must be between 0 and 59");
        break;
    case Check::Denominator:
        fail("Denominator " + to_string(rate_.Denominator()) + " must be between equals to 1");
        break;
    case Check::Sample: // "greater", though equal fails too
        fail("Sample " + to_string(sample_) + " is greater than numerator ratio " + to_string(rate_.Numerator()));
        break;
    case Check::DropLabel:
        fail("In dropped TimeCode, this value doesn't exist " + to_string(minute_) + ":" + to_string(second_) + ";" +
             to_string(sample_));
        break;
    case Check::DropRate:
        fail("Rate " + to_string(rate_.Numerator()) + " / " + to_string(rate_.Denominator()) +
             " is not compatible with drop TC format");
        break;
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
