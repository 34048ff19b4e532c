#pragma once

// From labels (date, clock time, frame) to counts of samples since 1900-01-01 and back. `rate` is the numerator of the
// rate, which alone matters. In drop-frame counting only the existing labels are counted.

#include <Qiv/TimePoints/Details/Calendar.h>
#include <Qiv/TimePoints/Details/Wrapping.h>

#include <cstdint>

namespace Qiv::TimePoints::Details
{

struct Clock
{
    std::int32_t hour;
    std::int32_t minute;
    std::int32_t second;
    std::int32_t sample;
};

struct Label
{
    Date date;
    Clock clock;
};

/// The labels that a minute skips, at the rates with drop-frame counting. 54 minutes of an hour skip labels.
constexpr std::int32_t SkippedPerMinute(std::int64_t rate) noexcept
{
    return rate == 60 ? 4 : 2;
}

constexpr std::int64_t SamplePerMinute(std::int64_t rate, bool isDrop) noexcept
{
    if (isDrop && (rate == 30 || rate == 60))
        return rate * 60 - SkippedPerMinute(rate);
    return WrappingMultiply(rate, 60);
}

constexpr std::int64_t SamplePerHour(std::int64_t rate, bool isDrop) noexcept
{
    if (isDrop && (rate == 30 || rate == 60))
        return rate * 3600 - std::int64_t{54} * SkippedPerMinute(rate);
    return WrappingMultiply(rate, 3600);
}

constexpr std::int64_t SamplePerDay(std::int64_t rate, bool isDrop) noexcept
{
    if (isDrop && (rate == 30 || rate == 60))
        return 24 * SamplePerHour(rate, isDrop);
    return WrappingMultiply(rate, 86400);
}

/// The count of samples at a clock time `days` after 1900-01-01; the values may be any.
constexpr std::int64_t TotalSampleAt(std::int64_t rate, bool isDrop, std::int64_t days, const Clock& clock) noexcept
{
    // At rates without drop-frame counting the flag adds the ten-minute correction although nothing is taken off per
    // minute. Such a flag is cleared later, but the count stays: kept on purpose.
    const std::int32_t perTenMinutes = isDrop ? SkippedPerMinute(rate) : 0;
    std::int64_t total = WrappingMultiply(days, SamplePerDay(rate, isDrop));
    total = WrappingAdd(total, WrappingMultiply(clock.hour, SamplePerHour(rate, isDrop)));
    total = WrappingAdd(total, WrappingMultiply(clock.minute, SamplePerMinute(rate, isDrop)));
    total = WrappingAdd(total, WrappingMultiply(clock.second, rate));
    total = WrappingAdd(total, std::int64_t{clock.minute / 10} * perTenMinutes);
    return WrappingAdd(total, clock.sample);
}

/// The position of existing label number `samples` when no label is skipped: 18 labels (at 60: 36) are skipped in ten
/// minutes, 2 (4) at the beginning of each of their minutes but the first. Right for all numbers up to 2^63.
template <unsigned Skipped, typename Unsigned>
constexpr Unsigned AddSkippedLabels(Unsigned samples) noexcept
{
    constexpr unsigned perMinute = Skipped * (15 * 60 - 1);      // a rate is 15 * Skipped: 1798, at 60 3596
    constexpr unsigned perTenMinutes = 10 * perMinute + Skipped; // 17982, at 60 35964
    const Unsigned tenMinutes = samples / perTenMinutes;
    const Unsigned rest = samples - tenMinutes * perTenMinutes;                 // [0, perTenMinutes)
    const Unsigned minutes = rest < Skipped ? 0 : (rest - Skipped) / perMinute; // [0, 9]
    return samples + (9 * tenMinutes + minutes) * Skipped;
}

template <typename Unsigned>
constexpr Unsigned AddSkippedLabels(std::int64_t rate, Unsigned samples) noexcept
{
    return rate == 60 ? AddSkippedLabels<4>(samples) : AddSkippedLabels<2>(samples);
}

/// The same for any count: whole days are left out, a negative count gives the negated position of its magnitude.
constexpr std::int64_t AddSkippedLabelsOfDay(std::int64_t rate, bool isDrop, std::int64_t samples) noexcept
{
    const std::int64_t inDay = Remainder(samples, SamplePerDay(rate, isDrop));
    const auto bits = static_cast<std::uint64_t>(inDay);
    return inDay < 0 ? Wrap(0 - AddSkippedLabels(rate, 0 - bits)) : Wrap(AddSkippedLabels(rate, bits));
}

/// The whole days in a count of samples.
constexpr std::int64_t DaysOf(std::int64_t rate, bool isDrop, std::int64_t totalSample) noexcept
{
    return Quotient(totalSample, SamplePerDay(rate, isDrop));
}

/// The clock time of any count of samples, negative fields included; all zero when `rate` is 0.
constexpr Clock ClockOf(std::int64_t rate, bool isDrop, std::int64_t totalSample) noexcept
{
    const std::int64_t inDay =
        isDrop ? AddSkippedLabelsOfDay(rate, isDrop, totalSample) : Remainder(totalSample, SamplePerDay(rate, isDrop));
    const std::int64_t perMinute = SamplePerMinute(rate, false);
    const std::int64_t perHour = SamplePerHour(rate, false);
    return {static_cast<std::int32_t>(Quotient(inDay, perHour)),
            static_cast<std::int32_t>(Quotient(Remainder(inDay, perHour), perMinute)),
            static_cast<std::int32_t>(Quotient(Remainder(inDay, perMinute), rate)),
            static_cast<std::int32_t>(Remainder(inDay, rate))};
}

/// Date and clock time of any count of samples.
constexpr Label LabelOf(std::int64_t rate, bool isDrop, std::int64_t totalSample) noexcept
{
    // Usual counts and rates in 32 bits: otherwise a recorder takes 5 % more instructions to write with -m32. A
    // day without skipped labels has 128 * 675 * rate samples, so its number is told from the count without 7 bits.
    constexpr std::int64_t endOfTotal = (std::int64_t{UINT32_MAX} + 1) * 128;
    constexpr std::int64_t highestRate = UINT32_MAX / 86400;
    if (totalSample < 0 || totalSample >= endOfTotal || rate < 1 || rate > highestRate)
        return {DateAfter(DaysOf(rate, isDrop, totalSample)), ClockOf(rate, isDrop, totalSample)};
    const auto total = static_cast<std::uint64_t>(totalSample);
    const auto perSecond = static_cast<std::uint32_t>(rate);
    const auto perDay = static_cast<std::uint32_t>(SamplePerDay(rate, isDrop));
    const auto days = isDrop ? static_cast<std::uint32_t>(total / perDay)
                             : static_cast<std::uint32_t>(total / 128) / (perSecond * 675);
    const std::uint32_t inDay = static_cast<std::uint32_t>(total) - days * perDay; // modulo 2^32; [0, perDay)
    const std::uint32_t nominal = isDrop ? AddSkippedLabels(rate, inDay) : inDay;  // [0, 86400 * rate)
    const std::uint32_t seconds = nominal / perSecond;                             // [0, 86399]
    const std::uint32_t minutes = seconds / 60;                                    // [0, 1439]
    return {DateAfter(days),
            {static_cast<std::int32_t>(minutes / 60), static_cast<std::int32_t>(minutes % 60),
             static_cast<std::int32_t>(seconds % 60), static_cast<std::int32_t>(nominal - seconds * perSecond)}};
}

} // namespace Qiv::TimePoints::Details
