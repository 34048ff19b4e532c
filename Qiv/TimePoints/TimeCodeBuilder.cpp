#include <Qiv/TimePoints/TimeCodeBuilder.h>

#include <Qiv/TimePoints/CalendarTools.h>
#include <Qiv/TimePoints/Details/SampleArithmetic.h>

#include <stdexcept>
#include <string>

namespace Qiv::TimePoints
{
namespace
{

constexpr std::int32_t minimumYear = 1900;
constexpr std::int32_t maximumYear = 2261;

constexpr bool IsWithin(std::int32_t value, std::int32_t first, std::int32_t last) noexcept
{
    return first <= value && value <= last;
}

} // namespace

enum class TimeCodeBuilder::Check
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

TimeCodeBuilder::Check TimeCodeBuilder::FirstFailedCheck() const noexcept
{
    if (!IsWithin(year_, minimumYear, maximumYear))
        return Check::Year;
    if (!IsWithin(month_, 1, 12))
        return Check::Month;
    if (!IsWithin(day_, 1, CalendarTools::DayPerMonth(year_, month_)))
        return Check::Day;
    if (!IsWithin(hour_, 0, 23))
        return Check::Hour;
    if (!IsWithin(minute_, 0, 59))
        return Check::Minute;
    if (!IsWithin(second_, 0, 59))
        return Check::Second;
    if (rate_.Denominator() != 1)
        return Check::Denominator;
    if (sample_ >= rate_.Numerator()) // a negative frame passes, on purpose
        return Check::Sample;
    if (!isDrop_)
        return Check::None;
    // Every rate but 30 has the gap of 60 here, so that 25 may fail for a label before it fails for the rate.
    if (minute_ % 10 != 0 && second_ == 0 && sample_ <= (rate_.Numerator() == 30 ? 1 : 3))
        return Check::DropLabel;
    return rate_.Numerator() == 30 || rate_.Numerator() == 60 ? Check::None : Check::DropRate;
}

bool TimeCodeBuilder::IsValidToBuildWithexception() const
{
    using std::to_string;
    const auto fail = [](const std::string& text) { throw std::out_of_range(text); };
    switch (FirstFailedCheck())
    {
    case Check::Year:
        fail("year " + to_string(year_) + " must be between " + to_string(minimumYear) + " and " +
             to_string(maximumYear));
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
    return FirstFailedCheck() == Check::None;
}

TimeCode TimeCodeBuilder::Build() const
{
    return IsValidToBuildWithexception() ? BuildChecked() : TimeCode::Empty();
}

bool TimeCodeBuilder::TryBuild(TimeCode& timeCode) const noexcept
{
    if (!IsValidToBuild())
        return false;
    timeCode = BuildChecked();
    return true;
}

TimeCode TimeCodeBuilder::BuildChecked() const noexcept
{
    const Details::Date date = hasDate_ ? Details::Date{year_, month_, day_} : Details::Date{1970, 1, 1};
    const std::int64_t totalSample =
        Details::TotalSampleAt(rate_.Numerator(), isDrop_, {date, {hour_, minute_, second_, sample_}});
    return TimeCode(totalSample, isDrop_, rate_, hasDate_);
}

} // namespace Qiv::TimePoints
