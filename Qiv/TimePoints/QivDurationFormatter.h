#pragma once

#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/DurationFormatter.h>
#include <Qiv/TimePoints/Export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Qiv::TimePoints
{

/// Writes durations as the signed decimal nanoseconds that `QivDurationParser` reads: "-40000000".
class QIV_TIMEPOINTS_EXPORT QivDurationFormatter : public DurationFormatter
{
public:
    /// No text is longer than this.
    static constexpr std::size_t MaximumLength = 20;

    QivDurationFormatter() = default;
    QivDurationFormatter(const QivDurationFormatter&) = default;
    QivDurationFormatter& operator=(const QivDurationFormatter&) = default;
    ~QivDurationFormatter() override;

    std::string Format(const Duration& duration) const override;

    /// Writes to `buffer`, which has room for `MaximumLength` characters, and returns the part written. No NUL follows.
    static std::string_view FormatTo(const Duration& duration, char* buffer) noexcept;
};

} // namespace Qiv::TimePoints
