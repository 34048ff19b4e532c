#pragma once

// Signed 64-bit arithmetic that wraps around as two's complement numbers do, for values that nobody has checked.

#include <cstdint>

namespace Qiv::TimePoints::Details
{

constexpr std::int64_t Wrap(std::uint64_t value) noexcept
{
    return static_cast<std::int64_t>(value);
}

constexpr std::int64_t WrappingAdd(std::int64_t left, std::int64_t right) noexcept
{
    return Wrap(static_cast<std::uint64_t>(left) + static_cast<std::uint64_t>(right));
}

constexpr std::int64_t WrappingSubtract(std::int64_t left, std::int64_t right) noexcept
{
    return Wrap(static_cast<std::uint64_t>(left) - static_cast<std::uint64_t>(right));
}

constexpr std::int64_t WrappingMultiply(std::int64_t left, std::int64_t right) noexcept
{
    return Wrap(static_cast<std::uint64_t>(left) * static_cast<std::uint64_t>(right));
}

/// Truncates toward zero; 0 when `right` is 0.
constexpr std::int64_t Quotient(std::int64_t left, std::int64_t right) noexcept
{
    if (right == 0)
        return 0;
    return right == -1 ? WrappingSubtract(0, left) : left / right;
}

/// Has the sign of `left`; 0 when `right` is 0.
constexpr std::int64_t Remainder(std::int64_t left, std::int64_t right) noexcept
{
    return right == 0 || right == -1 ? 0 : left % right;
}

} // namespace Qiv::TimePoints::Details
