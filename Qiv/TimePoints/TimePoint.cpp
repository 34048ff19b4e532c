#include <Qiv/TimePoints/TimePoint.h>

#include <Qiv/TimePoints/Details/Hash.h>

#include <ostream>

namespace Qiv::TimePoints
{

const TimePoint& TimePoint::Empty() noexcept
{
    static constexpr TimePoint empty;
    return empty;
}

TimePoint TimePoint::AlignWith(const TimePoints::Rate& rate) const
{
    return TimePoint(Duration(nanoseconds_).AlignWith(rate).Nanoseconds());
}

std::string TimePoint::ToString() const
{
    return Duration(nanoseconds_).ToString();
}

TimePoint& TimePoint::operator+=(const Duration& duration) noexcept
{
    nanoseconds_ = (Duration(nanoseconds_) + duration).Nanoseconds();
    return *this;
}

TimePoint& TimePoint::operator-=(const Duration& duration) noexcept
{
    nanoseconds_ = (Duration(nanoseconds_) - duration).Nanoseconds();
    return *this;
}

std::ostream& operator<<(std::ostream& stream, const TimePoint& point)
{
    return stream << point.ToString();
}

} // namespace Qiv::TimePoints

std::size_t std::hash<Qiv::TimePoints::TimePoint>::operator()(const Qiv::TimePoints::TimePoint& point) const noexcept
{
    return Qiv::TimePoints::Details::Hash(point.Nanoseconds());
}
