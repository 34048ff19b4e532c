#pragma once

// Eight characters of a text at once.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Qiv::TimePoints::Details
{

/// Eight characters as one number, the first in the lowest byte. Written out, since that becomes one instruction.
constexpr std::uint64_t LoadEight(const char* text) noexcept
{
    const auto byte = [text](int i) { return std::uint64_t{static_cast<unsigned char>(text[i])} << (8 * i); };
    return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

/// What eight characters of a text must be. Each may differ from its character in `pattern` by as much as its digit in
/// `maxima` says: a digit of at most 5 is '0' and '5', a fixed character has the maximum '0'.
class Shape
{
public:
    constexpr Shape(const char (&pattern)[9], const char (&maxima)[9]) noexcept
        : pattern_(LoadEight(pattern)), headroom_(0x7F7F7F7F7F7F7F7FU - (LoadEight(maxima) - 0x3030303030303030U))
    {
    }

    /// Sets bits of `wrong` when a character does not fit. Otherwise byte i of the result is the two-digit number at
    /// its place, wherever two digits stand. The digits keep their values since '0' has no bit in common with them.
    constexpr std::uint64_t Read(std::uint64_t text, std::uint64_t& wrong) const noexcept
    {
        const std::uint64_t values = text ^ pattern_;                   // [0, maximum] per byte
        wrong |= (values | (values + headroom_)) & 0x8080808080808080U; // [128, 255] per byte above the maximum
        return 10 * values + (values >> 8);                             // [0, 99] per byte
    }

private:
    std::uint64_t pattern_;
    std::uint64_t headroom_;
};

/// Sets bits of `wrong` when the eight characters are not all digits; otherwise gives their number.
constexpr std::uint32_t ReadEightDigits(std::uint64_t text, std::uint64_t& wrong) noexcept
{
    constexpr Shape digits("00000000", "99999999");
    const std::uint64_t pairs = digits.Read(text, wrong) & 0x00FF00FF00FF00FFU;      // [0, 99] per 16 bits
    const std::uint64_t fours = (100 * pairs + (pairs >> 16)) & 0x0000FFFF0000FFFFU; // [0, 9999] per 32 bits
    return static_cast<std::uint32_t>(fours) * 10000 + static_cast<std::uint32_t>(fours >> 32);
}

/// Sets bits of `wrong` when the 8 to 19 characters are not all digits; otherwise gives their number.
constexpr std::uint64_t ReadDigits(std::string_view text, std::uint64_t& wrong) noexcept
{
    constexpr std::uint32_t powers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};
    std::uint64_t value = ReadEightDigits(LoadEight(text.data()), wrong);
    if (text.size() >= 16)
        value = 100000000 * value + ReadEightDigits(LoadEight(text.data() + 8), wrong);
    const std::size_t rest = text.size() % 8;
    if (rest == 0)
        return value;
    // The last eight characters, with '0' in place of those that have been read.
    const std::uint64_t last = LoadEight(text.data() + text.size() - 8);
    const std::uint64_t unread = ~std::uint64_t{0} << (8 * (8 - rest));
    return powers[rest] * value + ReadEightDigits((last & unread) | (0x3030303030303030U & ~unread), wrong);
}

/// The value of a digit; above 9 for every other character.
constexpr unsigned DigitValue(char character) noexcept
{
    return static_cast<unsigned>(static_cast<unsigned char>(character)) - '0';
}

} // namespace Qiv::TimePoints::Details
