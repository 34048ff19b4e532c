#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/Formatter/SpeedFormatter.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Parser/SpeedParser.h>

#include <algorithm>
#include <limits>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

namespace
{

std::int32_t Saturate(std::int64_t value) noexcept
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

} // namespace

std::int32_t Speed::ToPercent() const noexcept
{
    return IsUndefined() ? 0 : Saturate(std::int64_t(numerator_) * 100 / std::int64_t(denominator_));
}

std::int32_t Speed::ToRoundedPercent() const noexcept
{
    if (IsUndefined())
        return 0;
    // Half a per cent is added in the direction of the sign, everything doubled to stay in whole numbers.
    const std::int64_t denominator = denominator_;               // [1, 2^32 - 1]
    const std::int64_t doubled = std::int64_t(numerator_) * 200; // below 2^39 in absolute value
    return Saturate((doubled + (numerator_ < 0 ? -denominator : denominator)) / (2 * denominator));
}

double Speed::ToDouble() const noexcept
{
    return IsUndefined() ? std::numeric_limits<double>::quiet_NaN() : double(numerator_) / double(denominator_);
}

std::string Speed::ToString() const
{
    Formatter::SpeedFormatter formatter;
    return ToString(formatter);
}

std::string Speed::ToString(Formatter::SpeedFormatter& formatter) const
{
    return formatter.Format(*this);
}

Speed Speed::Parse(const std::string& text, Parser::SpeedParser& parser)
{
    return parser.Parse(text);
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
