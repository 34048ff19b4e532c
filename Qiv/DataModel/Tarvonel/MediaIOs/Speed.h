#pragma once

#include <Qiv/DataModel/Tarvonel/Export.h>

#include <cstdint>
#include <string>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

namespace Formatter
{
class SpeedFormatter;
}

namespace Parser
{
class SpeedParser;
}

/// The play speed of a player channel as an exact fraction: 1/1 is normal speed, -1/2 half speed backwards.
///
/// Any two fields are taken and kept as they are. A speed whose denominator is 0 is undefined. Speeds are equal and
/// ordered by their values, exactly: 1/2 equals 2/4. An undefined speed equals only undefined ones and comes before all
/// others.
class QIV_DATAMODEL_TARVONEL_EXPORT Speed
{
public:
    /// The undefined speed 0/0.
    constexpr Speed() noexcept = default;
    constexpr Speed(std::int32_t numerator, std::uint32_t denominator) noexcept
        : numerator_(numerator), denominator_(denominator)
    {
    }

    static constexpr std::uint32_t UndefinedDenominator() noexcept { return 0; }
    /// Operator panels count speeds in thousandths.
    static constexpr std::uint32_t PelCompliantDenominator() noexcept { return 1000; }
    static constexpr Speed Undefined() noexcept { return Speed(0, UndefinedDenominator()); }
    constexpr bool IsUndefined() const noexcept { return denominator_ == 0; }

    constexpr bool operator==(const Speed& other) const noexcept { return CompareTo(other) == 0; }
    constexpr bool operator!=(const Speed& other) const noexcept { return CompareTo(other) != 0; }

    /// Negative, zero or positive as this speed is less than, equal to or greater than `other`.
    constexpr std::int32_t CompareTo(const Speed& other) const noexcept
    {
        if (IsUndefined() || other.IsUndefined())
            return static_cast<std::int32_t>(other.IsUndefined()) - static_cast<std::int32_t>(IsUndefined());
        // Each product is within [-2^31 * (2^32 - 1), (2^31 - 1) * (2^32 - 1)], which 64 bits hold.
        const std::int64_t left = std::int64_t(numerator_) * std::int64_t(other.denominator_);
        const std::int64_t right = std::int64_t(other.numerator_) * std::int64_t(denominator_);
        return static_cast<std::int32_t>(left > right) - static_cast<std::int32_t>(left < right);
    }

    constexpr std::int32_t Numerator() const noexcept { return numerator_; }
    constexpr std::uint32_t Denominator() const noexcept { return denominator_; }

    /// The speed in per cent of normal speed, without the fraction of a per cent (-0.509 gives -50). An undefined speed
    /// gives 0, and a speed beyond the 32-bit range the nearest number in it.
    std::int32_t ToPercent() const noexcept;
    /// The same, rounded to the nearest per cent; halves away from zero.
    std::int32_t ToRoundedPercent() const noexcept;
    /// The numerator divided by the denominator; not a number for an undefined speed.
    double ToDouble() const noexcept;

    /// The text form that the formatter gives; the default one writes "-1/2".
    std::string ToString() const;
    std::string ToString(Formatter::SpeedFormatter& formatter) const;
    /// Reads a text with the given parser and throws what it throws.
    static Speed Parse(const std::string& text, Parser::SpeedParser& parser);

private:
    std::int32_t numerator_ = 0; // carries the sign
    std::uint32_t denominator_ = 0;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
