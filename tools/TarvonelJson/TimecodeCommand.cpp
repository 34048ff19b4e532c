#include <TarvonelJson/TimecodeCommand.h>

#include <TarvonelJson/SourceText.h>

#include <Qiv/TimePoints/QivTimeCodeParser.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <cstdint>
#include <stdexcept>

namespace TarvonelJson
{

using Qiv::TimePoints::QivTimeCodeParser;
using Qiv::TimePoints::TimeCode;

namespace
{

std::string TwoDigits(std::int32_t number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string Describe(const TimeCode& timeCode)
{
    const auto date =
        std::to_string(timeCode.Year()) + '-' + TwoDigits(timeCode.Month()) + '-' + TwoDigits(timeCode.Day());
    return "  date          " + (timeCode.HasDate() ? date : "none") + "\n  time          " +
           TwoDigits(timeCode.Hour()) + ':' + TwoDigits(timeCode.Minute()) + ':' + TwoDigits(timeCode.Second()) + //
           "\n  frame         " + std::to_string(timeCode.Sample()) + "\n  rate          " +
           std::to_string(timeCode.Rate().Numerator()) + " frames per second" + "\n  counting      " +
           (timeCode.IsDrop() ? "drop-frame" : "non-drop") + "\n  total sample  " +
           std::to_string(timeCode.TotalSample()) + "\n  canonical     " + timeCode.ToString() + '\n';
}

} // namespace

TimecodeCommand::TimecodeCommand(CLI::App& program)
    : Command(program, "timecode", "Print fields, total sample and canonical form of time codes",
              R"(The total sample counts the frames since 1900-01-01, drop-frame labels that do not
exist left out. A time code without date is counted as if its date were 1970-01-01,
and its canonical form has a placeholder for the date that no parser accepts.
Put -- before a text that begins with a hyphen.

Examples:
  tarvonel-json timecode '2016-03-21T14:05:09;17@30' 10:00:00:00@25

Exit status: 0 all texts are time codes, 1 not all, 2 wrong usage.)")
{
    Arguments()
        .add_option("TEXT", texts_, "A time code, [YYYY-MM-DDT]hh:mm:ss:ff@RATE, with ; before ff for drop-frame")
        ->required()
        ->type_name("");
}

ExitStatus TimecodeCommand::Run(Output& output) const
{
    auto status = ExitStatus::Success;
    for (const auto& text : texts_)
    {
        try
        {
            const auto timeCode = QivTimeCodeParser().Parse(text);
            output.Write(text + '\n' + Describe(timeCode));
        }
        catch (const std::logic_error& error)
        {
            output.Flush();
            Report(text + ": " + error.what());
            status = ExitStatus::Failure;
        }
    }
    return status;
}

} // namespace TarvonelJson
