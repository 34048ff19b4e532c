#pragma once

#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/Export.h>

#include <string>
#include <utility>

namespace Qiv::TimePoints
{

/// Reads durations from text. Implementations define the form of the text.
class QIV_TIMEPOINTS_EXPORT DurationParser
{
public:
    DurationParser() = default;
    virtual ~DurationParser();

    /// @throws std::invalid_argument for a text of the wrong form, std::out_of_range for values out of range
    virtual Duration Parse(const std::string& text) const = 0;

    /// True when `Parse` reads the text.
    virtual bool IsStringFormatValid(const std::string& text) const = 0;

    /// The duration and true, or `Duration::Empty()` and false when `Parse` throws.
    virtual std::pair<bool, Duration> TryParse(const std::string& text) const = 0;

protected:
    DurationParser(const DurationParser&) = default;
    DurationParser& operator=(const DurationParser&) = default;
};

} // namespace Qiv::TimePoints
