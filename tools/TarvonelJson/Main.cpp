#include <TarvonelJson/CheckCommand.h>
#include <TarvonelJson/ConvertCommand.h>
#include <TarvonelJson/DiffCommand.h>
#include <TarvonelJson/HelpCommand.h>
#include <TarvonelJson/ManPage.h>
#include <TarvonelJson/MergeCommand.h>
#include <TarvonelJson/Messages.h>
#include <TarvonelJson/TimecodeCommand.h>
#include <TarvonelJson/UsageError.h>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <exception>
#include <initializer_list>
#include <new>
#include <string>

namespace TarvonelJson
{

namespace
{

ExitStatus RunProgram(int argc, char** argv)
{
    CLI::App program("Convert, check and merge JSON documents of the media-IO model", "tarvonel-json");
    program.footer(R"(A document is a JSON object, and its "_type" tells what it is: Node, MediaInput (a
recorder channel), MediaOutput (a player channel), SequenceOutput, Speed,
BoundaryAbsolute or BoundaryRelative. It is parsed strictly: no comments, no key
twice in an object, nothing after the document.

Messages stand on standard error, one a line, and begin with FILE:LINE:COLUMN or
the name of the program. Colours are used on terminals unless NO_COLOR is set.

Exit status of all commands:
  0  all is well
  1  a document is refused, check has findings, or diff a difference; a text is no
     time code
  2  wrong usage, something that can't be read or written, or no JSON

tarvonel-json COMMAND --help tells more, with examples.)");
    program.set_version_flag("-V,--version", "tarvonel-json " TARVONEL_JSON_VERSION, "Print the version and exit");
    program.require_subcommand(1);
    bool isManPageWanted = false;
    program.add_flag("--man-page", isManPageWanted)->group("");

    const ConvertCommand convert(program);
    const CheckCommand check(program);
    const MergeCommand merge(program);
    const DiffCommand diff(program);
    const TimecodeCommand timecode(program);
    const HelpCommand help(program);

    Output output;
    try
    {
        program.parse(argc, argv);
    }
    catch (const CLI::Success& asked)
    {
        // Whatever is printed instead of running: the version, or the help of the program or a command.
        output.Write(asked.get_name() == "CallForVersion" ? program.version() + '\n' : program.help());
        output.Flush();
        return ExitStatus::Success;
    }
    catch (const CLI::ParseError& error)
    {
        if (isManPageWanted)
        {
            output.Write(ManPage(program));
            output.Flush();
            return ExitStatus::Success;
        }
        ReportUsageError(program, error, argc, argv);
        return ExitStatus::Trouble;
    }
    auto status = ExitStatus::Success;
    for (const Command* const command :
         std::initializer_list<const Command*>{&convert, &check, &merge, &diff, &timecode, &help})
    {
        if (command->IsChosen())
            status = command->Run(output);
    }
    output.Flush();
    return status;
}

} // namespace

} // namespace TarvonelJson

int main(int argc, char** argv)
{
    using namespace TarvonelJson;
    try
    {
        return static_cast<int>(RunProgram(argc, argv));
    }
    catch (const std::bad_alloc&)
    {
        Report("memory does not suffice");
    }
    catch (const std::exception& error)
    {
        Report(error.what());
    }
    return static_cast<int>(ExitStatus::Trouble);
}
