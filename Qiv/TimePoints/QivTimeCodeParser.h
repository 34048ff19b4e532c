#pragma once

#include <Qiv/TimePoints/Export.h>
#include <Qiv/TimePoints/TimeCode.h>
#include <Qiv/TimePoints/TimeCodeParser.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace Qiv::TimePoints
{

/// Reads time codes with date, "2016-03-21T14:05:09:17@25", or without, "10:00:00:00@25".
///
/// Every number before the frame rate has as many digits as shown. The separator before the frame number tells
/// drop-frame counting (";") from non-drop (":"); the rate after "@" has one or more digits. Nothing may stand before
/// or after. The parser holds no state and may be used from several threads.
class QIV_TIMEPOINTS_EXPORT QivTimeCodeParser : public TimeCodeParser
{
public:
    QivTimeCodeParser() = default;
    QivTimeCodeParser(const QivTimeCodeParser&) = default;
    QivTimeCodeParser& operator=(const QivTimeCodeParser&) = default;
    ~QivTimeCodeParser() override;

    /// @throws std::invalid_argument "QivTimeCodeParser the string '10:00:00:00' has not the expected format."
    /// @throws std::out_of_range with the text of `TimeCodeBuilder` when it refuses a value, or "stoi" when the rate is
    ///         above 2147483647, whatever the other values are
    TimeCode Parse(const std::string& text) const override;

    /// True when `Parse` reads the text; does not throw for a bad text, with one exception.
    ///
    /// @throws std::out_of_range "stoi" for a text of the right form with a rate above 2147483647
    bool IsStringFormatValid(const std::string& text) const override;

    std::pair<bool, TimeCode> TryParse(const std::string& text) const noexcept override;

    /// Checks and reads a text in one pass, without allocation: true and the time code in `timeCode` when `Parse` would
    /// read it, otherwise (also for a rate above 2147483647) false with `timeCode` as it was.
    static bool TryRead(std::string_view text, TimeCode& timeCode) noexcept;

    /// Converts decimal text as `std::stoi` does, with its exceptions.
    std::int32_t StringToInt(const std::string& text) const;
};

} // namespace Qiv::TimePoints
