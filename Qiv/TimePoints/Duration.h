#pragma once

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

class DurationFormatter;
class DurationParser;

/// A span of time: a signed 64-bit count of nanoseconds, which covers about 292 years in either direction.
///
/// Results outside that range wrap around as two's complement numbers do.
class QIV_TIMEPOINTS_EXPORT Duration
{
public:
    /// The same as `Empty()`.
    constexpr Duration() noexcept = default;
    explicit constexpr Duration(std::int64_t nanoseconds) noexcept : nanoseconds_(nanoseconds) {}
    constexpr Duration(std::chrono::nanoseconds duration) noexcept : nanoseconds_(duration.count()) {}

    /// Zero nanoseconds. The reference stays valid for the life of the program.
    static const Duration& Empty() noexcept;
    static Duration FromSeconds(std::int64_t seconds) noexcept;
    static Duration FromMilliseconds(std::int64_t milliseconds) noexcept;

    /// The time at which sample number `samples` begins when sample 0 begins at zero, rounded up to the next
    /// nanosecond, so that `GetSampleNumber` gives the number back at rates up to 1000000000 per second, unless the
    /// time is out of range.
    ///
    /// @throws std::invalid_argument when a part of `rate` is not within 1 to 2147483647
    static Duration FromSampleNumber(std::int64_t samples, const Rate& rate);

    /// The number of the sample during which this time lies: the greatest that begins at it or before it.
    ///
    /// @throws std::invalid_argument when a part of `rate` is not within 1 to 2147483647
    std::int64_t GetSampleNumber(const Rate& rate) const;

    /// The beginning of the sample during which this time lies.
    ///
    /// @throws std::invalid_argument when a part of `rate` is not within 1 to 2147483647
    Duration AlignWith(const Rate& rate) const;

    /// Reads a text with the given parser and throws what it throws.
    static Duration Parse(const std::string& text, const DurationParser& parser);

    constexpr std::int64_t Nanoseconds() const noexcept { return nanoseconds_; }
    constexpr bool IsEmpty() const noexcept { return nanoseconds_ == 0; }
    constexpr operator std::chrono::nanoseconds() const noexcept { return std::chrono::nanoseconds(nanoseconds_); }

    /// Negative, zero or positive as this duration is shorter than, equal to or longer than `other`.
    constexpr int CompareTo(const Duration& other) const noexcept
    {
        return (nanoseconds_ > other.nanoseconds_) - (nanoseconds_ < other.nanoseconds_);
    }

    /// The nanoseconds in decimal: "-40000000".
    std::string ToString() const;
    std::string ToString(const DurationFormatter& formatter) const;

    Duration operator-() const noexcept;
    Duration& operator+=(const Duration& other) noexcept;
    Duration& operator-=(const Duration& other) noexcept;
    Duration& operator*=(std::int64_t factor) noexcept;
    /// Truncates toward zero.
    ///
    /// @throws std::domain_error when `divisor` is 0; this duration is unchanged then
    Duration& operator/=(std::int64_t divisor);

    friend Duration operator+(Duration left, const Duration& right) noexcept { return left += right; }
    friend Duration operator-(Duration left, const Duration& right) noexcept { return left -= right; }
    friend Duration operator*(Duration duration, std::int64_t factor) noexcept { return duration *= factor; }
    friend Duration operator*(std::int64_t factor, Duration duration) noexcept { return duration *= factor; }
    friend Duration operator/(Duration duration, std::int64_t divisor) { return duration /= divisor; }

    friend constexpr bool operator==(const Duration& left, const Duration& right) noexcept
    {
        return left.nanoseconds_ == right.nanoseconds_;
    }
    friend constexpr bool operator!=(const Duration& left, const Duration& right) noexcept { return !(left == right); }
    friend constexpr bool operator<(const Duration& left, const Duration& right) noexcept
    {
        return left.nanoseconds_ < right.nanoseconds_;
    }
    friend constexpr bool operator>(const Duration& left, const Duration& right) noexcept { return right < left; }
    friend constexpr bool operator<=(const Duration& left, const Duration& right) noexcept { return !(right < left); }
    friend constexpr bool operator>=(const Duration& left, const Duration& right) noexcept { return !(left < right); }

private:
    std::int64_t nanoseconds_ = 0;
};

/// Writes `duration.ToString()`.
QIV_TIMEPOINTS_EXPORT std::ostream& operator<<(std::ostream& stream, const Duration& duration);

} // namespace Qiv::TimePoints

template <>
struct std::hash<Qiv::TimePoints::Duration>
{
    QIV_TIMEPOINTS_EXPORT std::size_t operator()(const Qiv::TimePoints::Duration& duration) const noexcept;
};
