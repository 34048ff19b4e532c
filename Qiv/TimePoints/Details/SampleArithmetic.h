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

constexpr std::int64_t SamplePerMinute(std::int64_t rate, bool isDrop) noexcept
{
    if (isDrop && (rate == 30 || rate == 60))
        return rate == 30 ? 1798 : 3596; // 2 or 4 labels skipped
    return WrappingMultiply(rate, 60);
}

constexpr std::int64_t SamplePerHour(std::int64_t rate, bool isDrop) noexcept
{
    if (isDrop && (rate == 30 || rate == 60))
        return rate == 30 ? 107892 : 215784; // 2 or 4 labels skipped in 54 minutes
    return WrappingMultiply(rate, 3600);
}

constexpr std::int64_t SamplePerDay(std::int64_t rate, bool isDrop) noexcept
{
    if (isDrop && (rate == 30 || rate == 60))
        return rate == 30 ? 2589408 : 5178816; // 24 hours
    return WrappingMultiply(rate, 86400);
}

/// The count of samples at a label whose values may be any.
constexpr std::int64_t TotalSampleAt(std::int64_t rate, bool isDrop, const Label& label) noexcept
{
    const auto& [date, clock] = label;
    // At rates without drop-frame counting the flag adds the ten-minute correction although nothing is taken off per
    // minute. Such a flag is cleared later, but the count stays: kept on purpose.
    const std::int32_t perTenMinutes = isDrop ? (rate == 60 ? 4 : 2) : 0;
    std::int64_t total = WrappingMultiply(DaysTo(date.year, date.month, date.day), SamplePerDay(rate, isDrop));
    total = WrappingAdd(total, WrappingMultiply(clock.hour, SamplePerHour(rate, isDrop)));
    total = WrappingAdd(total, WrappingMultiply(clock.minute, SamplePerMinute(rate, isDrop)));
    total = WrappingAdd(total, WrappingMultiply(clock.second, rate));
    total = WrappingAdd(total, std::int64_t{clock.minute / 10} * perTenMinutes);
    return WrappingAdd(total, clock.sample);
}

/// The position of existing label number `samples` of a day when no label is skipped: adds the skipped labels until
/// their number fits the minutes passed. The sum is at most 1.0011 times `samples`, so that no 64-bit magnitude
/// overflows.
template <unsigned Skipped, unsigned PerMinute, typename Unsigned>
constexpr Unsigned AddSkippedLabels(Unsigned samples) noexcept
{
    Unsigned minutes = 0; // with skipped labels
    while (true)
    {
        const Unsigned more = samples / PerMinute - samples / (10 * PerMinute) - minutes;
        if (more == 0)
            return samples;
        samples += more * Skipped;
        minutes += more;
    }
}

template <typename Unsigned>
constexpr Unsigned AddSkippedLabels(std::int64_t rate, Unsigned samples) noexcept
{
    return rate == 60 ? AddSkippedLabels<4, 3600>(samples) : AddSkippedLabels<2, 1800>(samples);
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

/// Date and clock time of any count of samples. Counts and rates of every day take the short way in 32 bits, which
/// gives the same.
constexpr Label LabelOf(std::int64_t rate, bool isDrop, std::int64_t totalSample) noexcept
{
    if (totalSample < 0 || totalSample >= (std::int64_t{1} << 39) || rate < 1 || rate > 49710)
        return {DateAfter(DaysOf(rate, isDrop, totalSample)), ClockOf(rate, isDrop, totalSample)};

    // A non-drop day has 128 * 675 * rate samples, which leaves 32 bits to divide.
    const auto total = static_cast<std::uint64_t>(totalSample); // [0, 2^39)
    const auto rate32 = static_cast<std::uint32_t>(rate);       // [1, 49710]
    const std::uint32_t days = isDrop ? static_cast<std::uint32_t>(rate == 30 ? total / 2589408 : total / 5178816)
                                      : static_cast<std::uint32_t>(total >> 7) / (rate32 * 675);
    const auto perDay = static_cast<std::uint32_t>(SamplePerDay(rate, isDrop));   // [86400, 2^32)
    const auto inDay = static_cast<std::uint32_t>(total) - days * perDay;         // modulo 2^32; [0, perDay)
    const std::uint32_t nominal = isDrop ? AddSkippedLabels(rate, inDay) : inDay; // [0, 86400 * rate)
    const std::uint32_t seconds = nominal / rate32;                               // [0, 86399]
    const std::uint32_t minutes = seconds / 60;                                   // [0, 1439]
    return {DateAfter(days),
            {static_cast<std::int32_t>(minutes / 60), static_cast<std::int32_t>(minutes % 60),
             static_cast<std::int32_t>(seconds % 60), static_cast<std::int32_t>(nominal - seconds * rate32)}};
}

} // namespace Qiv::TimePoints::Details
