#pragma once

#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/DurationParser.h>
#include <Qiv/TimePoints/Export.h>

#include <string>
#include <string_view>
#include <utility>

namespace Qiv::TimePoints
{

/// Reads durations as nanoseconds: an optional sign and one or more decimal digits, "-40000000".
///
/// The number is read as an unsigned 64-bit one, negated modulo 2^64 after a minus sign and then taken as signed. A
/// number of 2^64 or more, with either sign, is no error and gives -1. The parser holds no state and may be used from
/// several threads.
class QIV_TIMEPOINTS_EXPORT QivDurationParser : public DurationParser
{
public:
    QivDurationParser() = default;
    QivDurationParser(const QivDurationParser&) = default;
    QivDurationParser& operator=(const QivDurationParser&) = default;
    ~QivDurationParser() override;

    /// @throws std::invalid_argument "QivDurationParser the string '12a' is not an integer."
    Duration Parse(const std::string& text) const override;
    bool IsStringFormatValid(const std::string& text) const override;
    std::pair<bool, Duration> TryParse(const std::string& text) const noexcept override;

    /// Checks and reads a text in one pass, without allocation: true and the duration in `duration` when `Parse` would
    /// read it, otherwise false with `duration` as it was.
    static bool TryRead(std::string_view text, Duration& duration) noexcept;
};

} // namespace Qiv::TimePoints
