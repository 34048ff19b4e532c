#include <Qiv/Common/Serialization/Json/Details/NumberText.h>

#include <algorithm>
#include <cfenv>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

#if defined(__i386__)
#include <fpu_control.h>
#endif

namespace Qiv::Common::Serialization::Json::Details
{

namespace
{

// std::from_chars multiplies and divides doubles, so it depends on how these are rounded.
class NearestRounding
{
public:
    NearestRounding() noexcept : mode_(std::fegetround())
    {
        if (mode_ != FE_TONEAREST)
            std::fesetround(FE_TONEAREST);
#if defined(__i386__)
        // Otherwise products are rounded twice, to 64 bits and then to 53.
        _FPU_GETCW(control_);
        auto control = static_cast<fpu_control_t>((control_ & ~(_FPU_EXTENDED | _FPU_RC_ZERO)) | _FPU_DOUBLE);
        _FPU_SETCW(control);
#endif
    }
    ~NearestRounding()
    {
#if defined(__i386__)
        _FPU_SETCW(control_);
#endif
        if (mode_ != FE_TONEAREST)
            std::fesetround(mode_);
    }
    NearestRounding(const NearestRounding&) = delete;
    NearestRounding& operator=(const NearestRounding&) = delete;

private:
    int mode_;
#if defined(__i386__)
    fpu_control_t control_{};
#endif
};

// Of a number that is out of range, so that only the sign of its exponent matters.
bool IsLarge(std::string_view magnitude) noexcept
{
    constexpr std::int64_t muchLarger = std::int64_t{1} << 40; // than the length of any text
    const auto digits = magnitude.substr(0, magnitude.find_first_of("eE"));
    const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<std::int64_t>(digits.find_first_of("123456789"));
    std::int64_t exponent = 0;
    if (digits.size() < magnitude.size())
    {
        auto text = magnitude.substr(digits.size() + 1);
        const bool isNegative = text.front() == '-';
        text.remove_prefix(isNegative || text.front() == '+' ? 1 : 0);
        const auto parsed = std::from_chars(text.data(), text.data() + text.size(), exponent);
        if (parsed.ec != std::errc() || exponent > muchLarger)
            exponent = muchLarger;
        exponent = isNegative ? -exponent : exponent;
    }
    return point - first + exponent > 0;
}

} // namespace

double RealOf(std::string_view spelling) noexcept
{
    double value = 0;
    {
        const NearestRounding rounding;
        if (std::from_chars(spelling.data(), spelling.data() + spelling.size(), value).ec == std::errc())
            return value;
    }
    const bool isNegative = spelling.front() == '-';
    spelling.remove_prefix(isNegative ? 1 : 0);
    value = IsLarge(spelling) ? std::numeric_limits<double>::infinity() : 0.0;
    return isNegative ? -value : value;
}

} // namespace Qiv::Common::Serialization::Json::Details
