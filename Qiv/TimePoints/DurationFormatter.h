#pragma once

#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/Export.h>

#include <string>

namespace Qiv::TimePoints
{

/// Writes durations as text. Implementations define the form of the text.
class QIV_TIMEPOINTS_EXPORT DurationFormatter
{
public:
    DurationFormatter() = default;
    virtual ~DurationFormatter();

    virtual std::string Format(const Duration& duration) const = 0;

protected:
    DurationFormatter(const DurationFormatter&) = default;
    DurationFormatter& operator=(const DurationFormatter&) = default;
};

} // namespace Qiv::TimePoints
