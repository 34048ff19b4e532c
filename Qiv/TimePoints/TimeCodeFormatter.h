#pragma once

#include <Qiv/TimePoints/Export.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <string>

namespace Qiv::TimePoints
{

/// Writes time codes as text. Implementations define the form of the text.
class QIV_TIMEPOINTS_EXPORT TimeCodeFormatter
{
public:
    TimeCodeFormatter() = default;
    virtual ~TimeCodeFormatter();

    virtual std::string Format(const TimeCode& timeCode) const = 0;

protected:
    TimeCodeFormatter(const TimeCodeFormatter&) = default;
    TimeCodeFormatter& operator=(const TimeCodeFormatter&) = default;
};

} // namespace Qiv::TimePoints
