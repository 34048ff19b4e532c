#include <Qiv/TimePoints/TimeCode.h>

#include <Qiv/TimePoints/Details/Hash.h>
#include <Qiv/TimePoints/Details/SampleArithmetic.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/TimeCodeBuilder.h>
#include <Qiv/TimePoints/TimeCodeFormatter.h>
#include <Qiv/TimePoints/TimeCodeParser.h>

#include <ostream>
#include <stdexcept>

namespace Qiv::TimePoints
{
namespace
{

Details::Label LabelOf(const TimeCode& timeCode) noexcept
{
    return Details::LabelOf(timeCode.Rate().Numerator(), timeCode.IsDrop(), timeCode.TotalSample());
}

} // namespace

TimeCode::TimeCode(std::int32_t year, std::int32_t month, std::int32_t day, std::int32_t hour, std::int32_t minute,
                   std::int32_t second, std::int32_t sample, TimePoints::Rate rate, bool isDrop)
    : TimeCode(TimeCodeBuilder()
                   .Date(year, month, day)
                   .ClockTime(hour, minute, second, sample)
                   .Rate(rate)
                   .IsDrop(isDrop)
                   .Build())
{
}

TimeCode::TimeCode(std::int32_t hour, std::int32_t minute, std::int32_t second, std::int32_t sample,
                   const TimePoints::Rate& rate, bool isDrop)
    : TimeCode(TimeCodeBuilder().ClockTime(hour, minute, second, sample).Rate(rate).IsDrop(isDrop).Build())
{
}

const TimeCode& TimeCode::Empty() noexcept
{
    static constexpr TimeCode empty;
    return empty;
}

TimeCode TimeCode::Parse(const std::string& text, const TimeCodeParser& parser)
{
    return parser.Parse(text);
}

std::string TimeCode::ToString() const
{
    return QivTimeCodeFormatter().Format(*this);
}

std::string TimeCode::ToString(const TimeCodeFormatter& formatter) const
{
    return formatter.Format(*this);
}

std::int32_t TimeCode::Year() const noexcept
{
    return hasDate_ ? LabelOf(*this).date.year : -1;
}

std::int32_t TimeCode::Month() const noexcept
{
    return hasDate_ ? LabelOf(*this).date.month : -1;
}

std::int32_t TimeCode::Day() const noexcept
{
    return hasDate_ ? LabelOf(*this).date.day : -1;
}

std::int32_t TimeCode::Hour() const noexcept
{
    return LabelOf(*this).clock.hour;
}

std::int32_t TimeCode::Minute() const noexcept
{
    return LabelOf(*this).clock.minute;
}

std::int32_t TimeCode::Second() const noexcept
{
    return LabelOf(*this).clock.second;
}

std::int32_t TimeCode::Sample() const noexcept
{
    return LabelOf(*this).clock.sample;
}

bool TimeCode::Equals(const TimeCode& other) const noexcept
{
    return totalSample_ == other.totalSample_ && hasDate_ == other.hasDate_ && IsCompatible(other);
}

bool TimeCode::IsCompatible(const TimeCode& other) const noexcept
{
    return rate_ == other.rate_ && isDrop_ == other.isDrop_;
}

TimeCode& TimeCode::AddSample(std::int64_t samples) noexcept
{
    totalSample_ = Details::WrappingAdd(totalSample_, samples);
    return *this;
}

TimeCode& TimeCode::SubstractSample(std::int64_t samples) noexcept
{
    totalSample_ = Details::WrappingSubtract(totalSample_, samples);
    return *this;
}

std::int64_t TimeCode::Substract(const TimeCode& other) const
{
    ThrowIfNotCompatible(other);
    return Details::WrappingSubtract(totalSample_, other.totalSample_);
}

TimeCode TimeCode::operator++(int) noexcept
{
    const TimeCode before = *this;
    AddSample(1);
    return before;
}

TimeCode TimeCode::operator--(int) noexcept
{
    const TimeCode before = *this;
    SubstractSample(1);
    return before;
}

std::int64_t TimeCode::SamplePerSecond() const noexcept
{
    return rate_.Numerator();
}

std::int64_t TimeCode::SamplePerMinute(bool isDrop) const noexcept
{
    return Details::SamplePerMinute(rate_.Numerator(), isDrop);
}

std::int64_t TimeCode::SamplePerHour(bool isDrop) const noexcept
{
    return Details::SamplePerHour(rate_.Numerator(), isDrop);
}

std::int64_t TimeCode::SamplePerDay() const noexcept
{
    return Details::SamplePerDay(rate_.Numerator(), isDrop_);
}

std::int64_t TimeCode::AddSkippedHmsSamplesInNtscDrop(std::int64_t samples) const noexcept
{
    return Details::AddSkippedLabelsOfDay(rate_.Numerator(), isDrop_, samples);
}

void TimeCode::DateTimeToSample(std::int32_t year, std::int32_t month, std::int32_t day, std::int32_t hour,
                                std::int32_t minute, std::int32_t second, std::int32_t sample) noexcept
{
    totalSample_ = Details::TotalSampleAt(rate_.Numerator(), isDrop_, Details::DaysTo(year, month, day),
                                          {hour, minute, second, sample});
}

std::int64_t TimeCode::DateToDays(std::int32_t year, std::int32_t month, std::int32_t day) noexcept
{
    return Details::DaysTo(year, month, day);
}

bool TimeCode::IsBefore(const TimeCode& other) const
{
    ThrowIfNotCompatible(other);
    return totalSample_ < other.totalSample_;
}

void TimeCode::ThrowIfNotCompatible(const TimeCode& other) const
{
    if (!IsCompatible(other))
        throw std::invalid_argument("Time codes " + ToString() + " and " + other.ToString() +
                                    " do not have the same rate and drop-frame counting");
}

std::ostream& operator<<(std::ostream& stream, const TimeCode& timeCode)
{
    return stream << timeCode.ToString();
}

} // namespace Qiv::TimePoints

std::size_t std::hash<Qiv::TimePoints::TimeCode>::operator()(const Qiv::TimePoints::TimeCode& timeCode) const noexcept
{
    using Qiv::TimePoints::Details::Hash;
    const int flags = (timeCode.IsDrop() ? 1 : 0) + (timeCode.HasDate() ? 2 : 0);
    return Hash(timeCode.TotalSample(), Hash(flags, std::hash<Qiv::TimePoints::Rate>()(timeCode.Rate())));
}
