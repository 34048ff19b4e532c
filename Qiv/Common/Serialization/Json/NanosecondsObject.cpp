#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>

#include <Qiv/Common/Serialization/Json/Details/TimePointForm.h>

#include <cstring>

namespace Qiv::Common::Serialization::Json
{

namespace
{

// The eight digits of a value below 10^8, leading zeros included; the first is the lowest byte.
std::uint64_t EightDigits(std::uint32_t value) noexcept
{
    const auto fours = value / 10000 | std::uint64_t{value % 10000} << 32U; // [0, 9999] per 32 bits
    const auto hundreds = (fours * 10486 >> 20U) & 0x0000007F0000007FU;     // fours / 100
    const auto pairs = hundreds | (fours - 100 * hundreds) << 16U;          // [0, 99] per 16 bits
    const auto tens = (pairs * 103 >> 10U) & 0x000F000F000F000FU;           // pairs / 10
    return 0x3030303030303030U + (tens | (pairs - 10 * tens) << 8U);
}

} // namespace

void AppendNanosecondsObject(Stringer& stringer, std::string_view type, std::int64_t nanoseconds)
{
    constexpr std::uint64_t group = 100000000;
    const bool isNegative = nanoseconds < 0;
    const auto bits = static_cast<std::uint64_t>(nanoseconds);
    const auto magnitude = isNegative ? 0 - bits : bits;
    const std::uint64_t groups[] = {EightDigits(static_cast<std::uint32_t>(magnitude / group / group)),
                                    EightDigits(static_cast<std::uint32_t>(magnitude / group % group)),
                                    EightDigits(static_cast<std::uint32_t>(magnitude % group))};
    char digits[sizeof groups];
    std::memcpy(digits, groups, sizeof groups);

    const auto* const end = std::end(digits);
    auto* begin = digits;
    while (*begin == '0' && begin != end - 1)
        ++begin;
    if (isNegative)
        *--begin = '-'; // 64 bits have 19 digits, so there is a leading zero
    stringer.ObjectOf({{Details::keyOf<Details::TimePointForm::type>, type},
                       {Details::keyOf<Details::TimePointForm::value>,
                        std::string_view(begin, static_cast<std::size_t>(end - begin))}});
}

} // namespace Qiv::Common::Serialization::Json
