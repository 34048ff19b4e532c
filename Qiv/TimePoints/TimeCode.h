#pragma once

#include <Qiv/TimePoints/Export.h>
#include <Qiv/TimePoints/Rate.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>

namespace Qiv::TimePoints
{

class TimeCodeFormatter;
class TimeCodeParser;

/// A broadcast time code: date, clock time and frame number at an integral frame rate, held as a count of samples
/// (frames) since 1900-01-01 00:00:00 frame 0.
///
///     const TimeCode start(2016, 3, 21, 14, 5, 9, 17, Rate(25), false);
///     (start + 8).ToString(); // "2016-03-21T14:05:10:00@25"
///
/// In drop-frame counting, which exists at 30 and 60 frames per second, the labels with second 0 and frame 0 and 1
/// (at 60: 0 to 3) do not exist in minutes that are not a multiple of 10, and the count knows existing labels only:
/// the label after 00:00:59;29 is 00:01:00;02, one sample later.
///
/// A time code without date is stored as if its date were 1970-01-01.
///
/// No operation has undefined behaviour, whatever the fields: counts outside the 64-bit range wrap around as two's
/// complement numbers do, and at a rate of 0 every field of date and clock time is that of sample 0.
class QIV_TIMEPOINTS_EXPORT TimeCode
{
public:
    /// The same as `Empty()`.
    constexpr TimeCode() noexcept = default;

    /// `totalSample` counts the existing labels since 1900-01-01. `isDrop` is taken over at the rates 30 and 60 only.
    constexpr TimeCode(std::int64_t totalSample, bool isDrop, const TimePoints::Rate& rate, bool hasDate) noexcept
        : rate_(rate),
          totalSample_(totalSample),
          isDrop_(isDrop && (rate.Numerator() == 30 || rate.Numerator() == 60)),
          hasDate_(hasDate)
    {
    }

    /// A time code with date.
    ///
    /// @throws std::out_of_range with the text of `TimeCodeBuilder` when it refuses a value
    TimeCode(std::int32_t year, std::int32_t month, std::int32_t day, std::int32_t hour, std::int32_t minute,
             std::int32_t second, std::int32_t sample, TimePoints::Rate rate, bool isDrop);

    /// A time code without date.
    ///
    /// @throws std::out_of_range with the text of `TimeCodeBuilder` when it refuses a value
    TimeCode(std::int32_t hour, std::int32_t minute, std::int32_t second, std::int32_t sample,
             const TimePoints::Rate& rate, bool isDrop);

    /// The time code that stands for "none": 1900-01-01T00:00:00:00 at 50 frames per second, with date. The reference
    /// stays valid for the life of the program.
    static const TimeCode& Empty() noexcept;

    /// Reads a text with the given parser and throws what it throws.
    static TimeCode Parse(const std::string& text, const TimeCodeParser& parser);

    /// The form that `QivTimeCodeFormatter` writes: "2016-03-21T14:05:09:17@25".
    std::string ToString() const;
    std::string ToString(const TimeCodeFormatter& formatter) const;

    constexpr const TimePoints::Rate& Rate() const noexcept { return rate_; }
    constexpr std::int64_t TotalSample() const noexcept { return totalSample_; }
    constexpr bool IsDrop() const noexcept { return isDrop_; }
    constexpr bool HasDate() const noexcept { return hasDate_; }

    /// -1 without date, like `Month()` and `Day()`.
    std::int32_t Year() const noexcept;
    std::int32_t Month() const noexcept;
    std::int32_t Day() const noexcept;
    std::int32_t Hour() const noexcept;
    std::int32_t Minute() const noexcept;
    std::int32_t Second() const noexcept;
    /// The frame number within the second.
    std::int32_t Sample() const noexcept;

    /// True when this time code equals `Empty()`.
    bool IsEmpty() const noexcept { return Equals(Empty()); }
    /// True when all fields are equal, those that say nothing about the instant included.
    bool Equals(const TimeCode& other) const noexcept;
    /// True when rate and drop-frame flag are the same, so that the two can be ordered and subtracted.
    bool IsCompatible(const TimeCode& other) const noexcept;

    /// Moves by existing labels, like all operators with a number of samples.
    TimeCode& AddSample(std::int64_t samples) noexcept;
    TimeCode& SubstractSample(std::int64_t samples) noexcept;
    /// The number of existing labels from `other` to this time code.
    ///
    /// @throws std::invalid_argument with a text that names both when they are not compatible
    std::int64_t Substract(const TimeCode& other) const;

    TimeCode& operator+=(std::int64_t samples) noexcept { return AddSample(samples); }
    TimeCode& operator-=(std::int64_t samples) noexcept { return SubstractSample(samples); }
    TimeCode& operator++() noexcept { return AddSample(1); }
    TimeCode& operator--() noexcept { return SubstractSample(1); }
    TimeCode operator++(int) noexcept;
    TimeCode operator--(int) noexcept;
    friend TimeCode operator+(TimeCode timeCode, std::int64_t samples) noexcept { return timeCode += samples; }
    friend TimeCode operator-(TimeCode timeCode, std::int64_t samples) noexcept { return timeCode -= samples; }
    /// The same as `left.Substract(right)`.
    friend std::int64_t operator-(const TimeCode& left, const TimeCode& right) { return left.Substract(right); }

    friend bool operator==(const TimeCode& left, const TimeCode& right) noexcept { return left.Equals(right); }
    friend bool operator!=(const TimeCode& left, const TimeCode& right) noexcept { return !left.Equals(right); }
    /// The order of the sample counts, for all four operators. Two time codes of which only one has a date can be
    /// different without one being before the other.
    ///
    /// @throws std::invalid_argument with a text that names both when they are not compatible
    friend bool operator<(const TimeCode& left, const TimeCode& right) { return left.IsBefore(right); }
    friend bool operator>(const TimeCode& left, const TimeCode& right) { return right.IsBefore(left); }
    friend bool operator<=(const TimeCode& left, const TimeCode& right) { return !right.IsBefore(left); }
    friend bool operator>=(const TimeCode& left, const TimeCode& right) { return !left.IsBefore(right); }

    /// The rate's numerator. It alone decides here and below; the denominator is ignored.
    std::int64_t SamplePerSecond() const noexcept;
    /// The labels of a minute; in drop-frame counting, of one that is not a multiple of 10.
    std::int64_t SamplePerMinute(bool isDrop) const noexcept;
    std::int64_t SamplePerHour(bool isDrop) const noexcept;
    std::int64_t SamplePerDay() const noexcept;

    /// The position within the day, counted as if no label were skipped, of a count of existing labels: at 30
    /// drop-frame 1800 gives 1802, the position of 00:01:00;02. Whole days are left out; a negative count gives the
    /// negated position of its absolute value. At rates other than 60 the gaps are those of 30 frames per second.
    std::int64_t AddSkippedHmsSamplesInNtscDrop(std::int64_t samples) const noexcept;

    /// Moves this time code to a date and clock time, which are not checked, at its rate and drop-frame flag.
    ///
    /// The date counts as `DateToDays` says. Whether there is a date stays as it is.
    void DateTimeToSample(std::int32_t year, std::int32_t month, std::int32_t day, std::int32_t hour,
                          std::int32_t minute, std::int32_t second, std::int32_t sample) noexcept;

    /// The days from 1900-01-01 to a date: 25567 for 1970-01-01. The values are not checked; years before 1900 add
    /// nothing (only their leap rule is followed), months below 1 count as 1, and months above 13 as 13, which is
    /// January of the next year.
    static std::int64_t DateToDays(std::int32_t year, std::int32_t month, std::int32_t day) noexcept;

private:
    bool IsBefore(const TimeCode& other) const;
    void ThrowIfNotCompatible(const TimeCode& other) const;

    TimePoints::Rate rate_;
    std::int64_t totalSample_ = 0;
    bool isDrop_ = false;
    bool hasDate_ = true;
};

/// Writes `timeCode.ToString()`.
QIV_TIMEPOINTS_EXPORT std::ostream& operator<<(std::ostream& stream, const TimeCode& timeCode);

} // namespace Qiv::TimePoints

template <>
struct std::hash<Qiv::TimePoints::TimeCode>
{
    QIV_TIMEPOINTS_EXPORT std::size_t operator()(const Qiv::TimePoints::TimeCode& timeCode) const noexcept;
};
