#pragma once

#include <Qiv/TimePoints/Export.h>
#include <Qiv/TimePoints/Rate.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <cstdint>

namespace Qiv::TimePoints
{

namespace Details
{
struct TimeCodeFields;
}

/// Collects the fields of a time code, checks them and builds it.
///
///     const TimeCode timeCode = TimeCodeBuilder().Date(2016, 3, 21).ClockTime(14, 5, 9, 17).Rate(25).Build();
///
/// A new builder holds 1970-01-01 00:00:00 frame 0 at 50 frames per second, non-drop, without date.
class QIV_TIMEPOINTS_EXPORT TimeCodeBuilder
{
public:
    TimeCodeBuilder& Year(std::int32_t year) noexcept { return Set(year_, year); }
    TimeCodeBuilder& Month(std::int32_t month) noexcept { return Set(month_, month); }
    TimeCodeBuilder& Day(std::int32_t day) noexcept { return Set(day_, day); }
    TimeCodeBuilder& Hour(std::int32_t hour) noexcept { return Set(hour_, hour); }
    TimeCodeBuilder& Minute(std::int32_t minute) noexcept { return Set(minute_, minute); }
    TimeCodeBuilder& Second(std::int32_t second) noexcept { return Set(second_, second); }
    /// The frame number within the second.
    TimeCodeBuilder& Sample(std::int32_t sample) noexcept { return Set(sample_, sample); }
    TimeCodeBuilder& Rate(TimePoints::Rate rate) noexcept { return Set(rate_, rate); }
    TimeCodeBuilder& Rate(std::int64_t samplesPerSecond) noexcept { return Rate(TimePoints::Rate(samplesPerSecond)); }
    TimeCodeBuilder& IsDrop(bool isDrop) noexcept { return Set(isDrop_, isDrop); }
    /// Whether the time code has a date. The date fields are checked in either case.
    TimeCodeBuilder& HasDate(bool hasDate) noexcept { return Set(hasDate_, hasDate); }
    /// Sets the date and with it that there is one.
    TimeCodeBuilder& Date(std::int32_t year, std::int32_t month, std::int32_t day) noexcept
    {
        return Year(year).Month(month).Day(day).HasDate(true);
    }
    /// Leaves whether there is a date as it is.
    TimeCodeBuilder& ClockTime(std::int32_t hour, std::int32_t minute, std::int32_t second,
                               std::int32_t sample) noexcept
    {
        return Hour(hour).Minute(minute).Second(second).Sample(sample);
    }

    /// Checks, in this order: year 1900 to 2261, month, day of that month, hour, minute, second, denominator 1, frame
    /// below the rate, and for drop-frame counting that the label exists and the rate is 30 or 60. A negative frame
    /// passes.
    ///
    /// @return true
    /// @throws std::out_of_range with the text of the first check that fails, for example
    ///         "hour 24 must be between 0 and 23"
    bool IsValidToBuildWithexception() const;
    /// The same checks as a plain answer.
    bool IsValidToBuild() const noexcept;

    /// @throws std::out_of_range as `IsValidToBuildWithexception()` does
    TimeCode Build() const;

private:
    template <typename Field>
    TimeCodeBuilder& Set(Field& field, const Field& value) noexcept
    {
        field = value;
        return *this;
    }
    Details::TimeCodeFields Fields() const noexcept;

    std::int32_t year_ = 1970;
    std::int32_t month_ = 1;
    std::int32_t day_ = 1;
    std::int32_t hour_ = 0;
    std::int32_t minute_ = 0;
    std::int32_t second_ = 0;
    std::int32_t sample_ = 0;
    TimePoints::Rate rate_;
    bool isDrop_ = false;
    bool hasDate_ = false;
};

} // namespace Qiv::TimePoints
