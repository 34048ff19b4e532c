#pragma once

#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/Export.h>
#include <Qiv/TimePoints/Rate.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>

namespace Qiv::TimePoints
{

/// An instant: a signed 64-bit count of nanoseconds since an origin on which its users agree.
///
/// Results outside the 64-bit range wrap around as two's complement numbers do. Arithmetic does not treat the empty
/// time point specially.
class QIV_TIMEPOINTS_EXPORT TimePoint
{
public:
    /// The same as `Empty()`.
    constexpr TimePoint() noexcept = default;
    explicit constexpr TimePoint(std::int64_t nanoseconds) noexcept : nanoseconds_(nanoseconds) {}
    explicit constexpr TimePoint(std::chrono::nanoseconds sinceOrigin) noexcept : nanoseconds_(sinceOrigin.count()) {}

    /// "No instant": -9223372036854775807 nanoseconds. The reference stays valid for the life of the program.
    static const TimePoint& Empty() noexcept;

    constexpr std::int64_t Nanoseconds() const noexcept { return nanoseconds_; }
    constexpr bool IsEmpty() const noexcept { return nanoseconds_ == emptyNanoseconds; }
    explicit constexpr operator std::chrono::nanoseconds() const noexcept
    {
        return std::chrono::nanoseconds(nanoseconds_);
    }

    /// Negative, zero or positive as this instant is before, at or after `other`.
    constexpr int CompareTo(const TimePoint& other) const noexcept
    {
        return (nanoseconds_ > other.nanoseconds_) - (nanoseconds_ < other.nanoseconds_);
    }

    /// The beginning of the sample during which this instant lies, when sample 0 begins at the origin.
    ///
    /// @throws std::invalid_argument when a part of `rate` is not within 1 to 2147483647
    TimePoint AlignWith(const Rate& rate) const;

    /// The nanoseconds in decimal: "1458569109680000000".
    std::string ToString() const;

    TimePoint& operator+=(const Duration& duration) noexcept;
    TimePoint& operator-=(const Duration& duration) noexcept;

    friend TimePoint operator+(TimePoint point, const Duration& duration) noexcept { return point += duration; }
    friend TimePoint operator+(const Duration& duration, TimePoint point) noexcept { return point += duration; }
    friend TimePoint operator-(TimePoint point, const Duration& duration) noexcept { return point -= duration; }
    friend Duration operator-(const TimePoint& left, const TimePoint& right) noexcept
    {
        return Duration(left.nanoseconds_) - Duration(right.nanoseconds_);
    }

    friend constexpr bool operator==(const TimePoint& left, const TimePoint& right) noexcept
    {
        return left.nanoseconds_ == right.nanoseconds_;
    }
    friend constexpr bool operator!=(const TimePoint& left, const TimePoint& right) noexcept
    {
        return !(left == right);
    }
    friend constexpr bool operator<(const TimePoint& left, const TimePoint& right) noexcept
    {
        return left.nanoseconds_ < right.nanoseconds_;
    }
    friend constexpr bool operator>(const TimePoint& left, const TimePoint& right) noexcept { return right < left; }
    friend constexpr bool operator<=(const TimePoint& left, const TimePoint& right) noexcept { return !(right < left); }
    friend constexpr bool operator>=(const TimePoint& left, const TimePoint& right) noexcept { return !(left < right); }

private:
    static constexpr std::int64_t emptyNanoseconds = -9223372036854775807;

    std::int64_t nanoseconds_ = emptyNanoseconds;
};

/// Writes `point.ToString()`.
QIV_TIMEPOINTS_EXPORT std::ostream& operator<<(std::ostream& stream, const TimePoint& point);

} // namespace Qiv::TimePoints

template <>
struct std::hash<Qiv::TimePoints::TimePoint>
{
    QIV_TIMEPOINTS_EXPORT std::size_t operator()(const Qiv::TimePoints::TimePoint& point) const noexcept;
};
