#pragma once

#include <Qiv/TimePoints/Export.h>
#include <Qiv/TimePoints/TimeCode.h>
#include <Qiv/TimePoints/TimeCodeFormatter.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Qiv::TimePoints
{

/// Writes time codes in the dated form that `QivTimeCodeParser` reads: "2016-03-21T14:05:09;17@30".
///
/// With a date from 1900 to 2261 and a rate from 1 to 100, of the denominator 1, the parser reads the text back to the
/// same time code. It refuses frame numbers of three digits and more, which higher rates have, and fields below zero,
/// which a negative count has. The denominator is not written.
///
/// A time code without date is written with a date of minus ones, "-1-0-1-0-1T10:00:00:00@25", on purpose: other
/// systems know it by that text, though the parser refuses it. The formatter holds no state and may be used from
/// several threads.
class QIV_TIMEPOINTS_EXPORT QivTimeCodeFormatter : public TimeCodeFormatter
{
public:
    /// No text is longer than this: a year, six fields with a "0" before them, seven separators and a rate. Those of
    /// time codes with date at rates up to 100 have 24 to 26 characters.
    static constexpr std::size_t MaximumLength = 11 + 6 * (1 + 11) + 7 + 20;

    QivTimeCodeFormatter() = default;
    QivTimeCodeFormatter(const QivTimeCodeFormatter&) = default;
    QivTimeCodeFormatter& operator=(const QivTimeCodeFormatter&) = default;
    ~QivTimeCodeFormatter() override;

    std::string Format(const TimeCode& timeCode) const override;

    /// Writes to `buffer`, which has room for `MaximumLength` characters, and returns the part written. No NUL follows.
    static std::string_view FormatTo(const TimeCode& timeCode, char* buffer) noexcept;
};

} // namespace Qiv::TimePoints
