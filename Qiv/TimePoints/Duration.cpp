#include <Qiv/TimePoints/Duration.h>

#include <Qiv/TimePoints/Details/Hash.h>
#include <Qiv/TimePoints/Details/Wrapping.h>
#include <Qiv/TimePoints/DurationFormatter.h>
#include <Qiv/TimePoints/DurationParser.h>
#include <Qiv/TimePoints/QivDurationFormatter.h>

#include <ostream>
#include <stdexcept>

namespace Qiv::TimePoints
{
namespace
{

constexpr std::int64_t nanosecondsPerSecond = 1000000000;

struct Division
{
    std::int64_t quotient;
    std::int64_t remainder;
};

/// Rounds down, so that the remainder is within [0, divisor). `divisor` is at least 1.
Division Floor(std::int64_t dividend, std::int64_t divisor)
{
    const std::int64_t remainder = dividend % divisor;
    return remainder < 0 ? Division{dividend / divisor - 1, remainder + divisor}
                         : Division{dividend / divisor, remainder};
}

/// Both parts of a rate stay below 2^31, which keeps all products of the conversions below 2^62.
void ThrowIfNotUsable(const Rate& rate)
{
    for (const std::int64_t part : {rate.Numerator(), rate.Denominator()})
        if (part < 1 || part > INT32_MAX)
            throw std::invalid_argument("Rate " + rate.ToString() + " does not number samples");
}

} // namespace

const Duration& Duration::Empty() noexcept
{
    static constexpr Duration empty;
    return empty;
}

Duration Duration::FromSeconds(std::int64_t seconds) noexcept
{
    return Duration(Details::WrappingMultiply(seconds, nanosecondsPerSecond));
}

Duration Duration::FromMilliseconds(std::int64_t milliseconds) noexcept
{
    return Duration(Details::WrappingMultiply(milliseconds, 1000000));
}

Duration Duration::FromSampleNumber(std::int64_t samples, const Rate& rate)
{
    ThrowIfNotUsable(rate);
    // samples * denominator / numerator seconds, split so that no product leaves 64 bits
    const Division whole = Floor(samples, rate.Numerator());
    const Division rest = Floor(whole.remainder * rate.Denominator(), rate.Numerator());
    const Division fraction = Floor(rest.remainder * nanosecondsPerSecond, rate.Numerator());
    const std::int64_t seconds =
        Details::WrappingAdd(Details::WrappingMultiply(whole.quotient, rate.Denominator()), rest.quotient);
    return FromSeconds(seconds) + Duration(fraction.quotient + (fraction.remainder > 0 ? 1 : 0));
}

std::int64_t Duration::GetSampleNumber(const Rate& rate) const
{
    ThrowIfNotUsable(rate);
    const Division seconds = Floor(nanoseconds_, nanosecondsPerSecond);
    const Division whole = Floor(seconds.quotient, rate.Denominator());
    const Division rest = Floor(whole.remainder * rate.Numerator(), rate.Denominator());
    const Division fraction = Floor(rest.remainder * nanosecondsPerSecond + seconds.remainder * rate.Numerator(),
                                    nanosecondsPerSecond * rate.Denominator());
    return Details::WrappingAdd(Details::WrappingMultiply(whole.quotient, rate.Numerator()),
                                rest.quotient + fraction.quotient);
}

Duration Duration::AlignWith(const Rate& rate) const
{
    return FromSampleNumber(GetSampleNumber(rate), rate);
}

Duration Duration::Parse(const std::string& text, const DurationParser& parser)
{
    return parser.Parse(text);
}

std::string Duration::ToString() const
{
    return QivDurationFormatter().Format(*this);
}

std::string Duration::ToString(const DurationFormatter& formatter) const
{
    return formatter.Format(*this);
}

Duration Duration::operator-() const noexcept
{
    return Duration(Details::WrappingSubtract(0, nanoseconds_));
}

Duration& Duration::operator+=(const Duration& other) noexcept
{
    nanoseconds_ = Details::WrappingAdd(nanoseconds_, other.nanoseconds_);
    return *this;
}

Duration& Duration::operator-=(const Duration& other) noexcept
{
    nanoseconds_ = Details::WrappingSubtract(nanoseconds_, other.nanoseconds_);
    return *this;
}

Duration& Duration::operator*=(std::int64_t factor) noexcept
{
    nanoseconds_ = Details::WrappingMultiply(nanoseconds_, factor);
    return *this;
}

Duration& Duration::operator/=(std::int64_t divisor)
{
    if (divisor == 0)
        throw std::domain_error("Duration divided by 0");
    nanoseconds_ = Details::Quotient(nanoseconds_, divisor);
    return *this;
}

std::ostream& operator<<(std::ostream& stream, const Duration& duration)
{
    return stream << duration.ToString();
}

} // namespace Qiv::TimePoints

std::size_t std::hash<Qiv::TimePoints::Duration>::operator()(const Qiv::TimePoints::Duration& duration) const noexcept
{
    return Qiv::TimePoints::Details::Hash(duration.Nanoseconds());
}
