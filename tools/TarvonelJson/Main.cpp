#include <TarvonelJson/CheckCommand.h>
#include <TarvonelJson/ConvertCommand.h>
#include <TarvonelJson/ManPage.h>
#include <TarvonelJson/MergeCommand.h>
#include <TarvonelJson/SourceText.h>
#include <TarvonelJson/TimecodeCommand.h>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <csignal>
#include <exception>
#include <iostream>
#include <sstream>

namespace TarvonelJson
{

namespace
{

/// Where the reader of standard output went away, writing fails instead of ending the process.
void IgnoreBrokenPipes()
{
    std::signal(SIGPIPE, SIG_IGN);
}

ExitStatus RunProgram(int argc, char** argv)
{
    CLI::App program("Convert, check and merge JSON documents of the media-IO model", "tarvonel-json");
    program.footer(R"(A document is a JSON object, and its "_type" tells what it is: Node, MediaInput (a
recorder channel), MediaOutput (a player channel), SequenceOutput, Speed,
BoundaryAbsolute or BoundaryRelative. It is parsed strictly: no comments, no key
twice in an object, nothing after the document.

tarvonel-json COMMAND --help tells more, with examples.)");
    program.set_version_flag("--version", "tarvonel-json " TARVONEL_JSON_VERSION, "Print the version and exit");
    program.require_subcommand(1);
    bool isManPageWanted = false;
    program.add_flag("--man-page", isManPageWanted)->group("");

    const ConvertCommand convert(program);
    const CheckCommand check(program);
    const MergeCommand merge(program);
    const TimecodeCommand timecode(program);
    const Command* chosen = nullptr;

    Output output;
    try
    {
        try
        {
            program.parse(argc, argv);
        }
        catch (const CLI::ParseError& error)
        {
            if (isManPageWanted)
            {
                output.Write(ManPage(program));
                output.Flush();
                return ExitStatus::Success;
            }
            std::ostringstream text;
            const bool isHelp = program.exit(error, text, std::cerr) == 0;
            output.Write(text.str());
            output.Flush();
            return isHelp ? ExitStatus::Success : ExitStatus::Usage;
        }
        for (const Command* const command :
             {static_cast<const Command*>(&convert), static_cast<const Command*>(&check),
              static_cast<const Command*>(&merge), static_cast<const Command*>(&timecode)})
        {
            if (command->IsChosen())
                chosen = command;
        }
        const auto status = chosen->Run(output);
        output.Flush();
        return status;
    }
    catch (const std::exception& error)
    {
        Report(std::string("tarvonel-json: ") + error.what());
        return chosen ? chosen->StatusOfFailedOutput() : ExitStatus::Failure;
    }
}

} // namespace

} // namespace TarvonelJson

int main(int argc, char** argv)
{
    TarvonelJson::IgnoreBrokenPipes();
    return static_cast<int>(TarvonelJson::RunProgram(argc, argv));
}
