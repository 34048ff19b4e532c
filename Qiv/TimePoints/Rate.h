#pragma once

#include <Qiv/TimePoints/Export.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>

namespace Qiv::TimePoints
{

/// A number of samples (frames) per second as a fraction: `Rate(25)`, `Rate(30000, 1001)`.
///
/// Any two numbers are taken and kept as they are. Time codes have the denominator 1. Rates are equal when both
/// numbers are: 50/1 and 100/2 differ.
class QIV_TIMEPOINTS_EXPORT Rate
{
public:
    /// 50 samples per second, the rate of the empty time code.
    constexpr Rate() noexcept = default;
    explicit constexpr Rate(std::int64_t numerator) noexcept : Rate(numerator, 1) {}
    constexpr Rate(std::int64_t numerator, std::int64_t denominator) noexcept
        : numerator_(numerator), denominator_(denominator)
    {
    }

    constexpr std::int64_t Numerator() const noexcept { return numerator_; }
    constexpr std::int64_t Denominator() const noexcept { return denominator_; }

    /// Both numbers in decimal: "30000/1001".
    std::string ToString() const;

    friend constexpr bool operator==(const Rate& left, const Rate& right) noexcept
    {
        return left.numerator_ == right.numerator_ && left.denominator_ == right.denominator_;
    }
    friend constexpr bool operator!=(const Rate& left, const Rate& right) noexcept { return !(left == right); }

private:
    std::int64_t numerator_ = 50;
    std::int64_t denominator_ = 1;
};

/// Writes `rate.ToString()`.
QIV_TIMEPOINTS_EXPORT std::ostream& operator<<(std::ostream& stream, const Rate& rate);

} // namespace Qiv::TimePoints

template <>
struct std::hash<Qiv::TimePoints::Rate>
{
    QIV_TIMEPOINTS_EXPORT std::size_t operator()(const Qiv::TimePoints::Rate& rate) const noexcept;
};
