#include <TarvonelJson/TimecodeCommand.h>

#include <TarvonelJson/Input.h>
#include <TarvonelJson/InputFiles.h>
#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Printable.h>
#include <TarvonelJson/TimeCodeForm.h>

#include <Qiv/TimePoints/QivTimeCodeParser.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <algorithm>
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

/// `start` begins the message when the text is no time code.
ExitStatus Explain(const std::string& text, const std::string& start, Output& output)
{
    const auto quoted = '"' + Shortened(text) + '"';
    try
    {
        const auto timeCode = QivTimeCodeParser().Parse(text);
        output.Write(text + '\n' + Describe(timeCode));
        return ExitStatus::Success;
    }
    catch (const std::invalid_argument&)
    {
        Report(start, quoted + ' ' + WhyNoTimeCode(text));
    }
    catch (const std::out_of_range& error)
    {
        const bool isOfLibrary = std::string(error.what()) == "stoi"; // all that the parser says of such a rate
        Report(start, isOfLibrary ? quoted + ' ' + WhyNoTimeCode(text) : quoted + ": " + error.what());
    }
    return ExitStatus::Findings;
}

ExitStatus ExplainLines(Output& output)
{
    Input input(Input::standardInput, [&output] { output.Flush(); });
    SourceText source;
    source.file = Input::DisplayName(Input::standardInput);
    auto status = ExitStatus::Success;
    std::string text;
    for (; input.ReadLine(text, InputFiles::defaultMaximumBytes) != Input::Part::None; ++source.firstLine)
    {
        if (text.empty())
            continue;
        output.Flush();
        status = std::max(status, Explain(text, source.MessageStart(), output));
    }
    return status;
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
  grep -o '[0-9:;]*@25' notes.txt | tarvonel-json timecode -)")
{
    Arguments()
        .add_option("TEXT", texts_,
                    "A time code, [YYYY-MM-DDT]hh:mm:ss:ff@RATE, with ; before ff for drop-frame; - reads lines from "
                    "standard input")
        ->required()
        ->type_name("");
    Arguments().callback([this] { InputFiles::RequireOneStandardInput(texts_); });
}

ExitStatus TimecodeCommand::Run(Output& output) const
{
    auto status = ExitStatus::Success;
    for (const auto& text : texts_)
    {
        output.Flush();
        const auto statusOfText =
            text == Input::standardInput ? ExplainLines(output) : Explain(text, "tarvonel-json: ", output);
        status = std::max(status, statusOfText);
    }
    return status;
}

} // namespace TarvonelJson
