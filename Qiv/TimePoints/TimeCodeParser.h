#pragma once

#include <Qiv/TimePoints/Export.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <string>
#include <utility>

namespace Qiv::TimePoints
{

/// Reads time codes from text. Implementations define the form of the text.
class QIV_TIMEPOINTS_EXPORT TimeCodeParser
{
public:
    TimeCodeParser() = default;
    virtual ~TimeCodeParser();

    /// @throws std::invalid_argument for a text of the wrong form, std::out_of_range for values out of range
    virtual TimeCode Parse(const std::string& text) const = 0;

    /// True when `Parse` reads the text.
    virtual bool IsStringFormatValid(const std::string& text) const = 0;

    /// The time code and true, or `TimeCode::Empty()` and false when `Parse` throws.
    virtual std::pair<bool, TimeCode> TryParse(const std::string& text) const = 0;

protected:
    TimeCodeParser(const TimeCodeParser&) = default;
    TimeCodeParser& operator=(const TimeCodeParser&) = default;
};

} // namespace Qiv::TimePoints
