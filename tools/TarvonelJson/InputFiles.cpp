#include <TarvonelJson/InputFiles.h>

#include <TarvonelJson/Input.h>
#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Printable.h>

#include <algorithm>
#include <new>
#include <string>

#include <unistd.h>

namespace TarvonelJson
{

namespace
{

ExitStatus HandlePart(Input::Part part, const SourceText& source, std::uint64_t maximumBytes,
                      const InputFiles::Handler& handle)
{
    if (part == Input::Part::TooLarge)
    {
        Report(source.MessageStart(), "more than " + std::to_string(maximumBytes) +
                                          " bytes, which --max-bytes allows for a document; it is passed over");
        return ExitStatus::Trouble;
    }
    try
    {
        if (part == Input::Part::Complete)
            return handle(source);
    }
    catch (const std::bad_alloc&)
    {
        // Whatever the document took is free again.
    }
    Report(source.MessageStart(), "memory does not suffice for the document; it is passed over");
    return ExitStatus::Trouble;
}

ExitStatus ReportUnreadable(const std::string& name, const InputError& error)
{
    Report(ShortFileName(Input::DisplayName(name)) + ": " + error.what());
    return ExitStatus::Trouble;
}

} // namespace

void InputFiles::AddTo(CLI::App& command)
{
    command
        .add_option("FILE", names_,
                    "Files with one document each; - is standard input, as is no file when that is no terminal")
        ->type_name("");
    command.add_flag("--ndjson", areLines_, "Each line of a file is a document, read and handled one by one");
    AddMaximumBytesTo(command, maximumBytes_);
    command.callback(
        [this]
        {
            if (names_.empty() && isatty(STDIN_FILENO) != 0)
                throw CLI::ValidationError("FILE", "none is named, and standard input is a terminal; - reads from it");
            RequireOneStandardInput(names_);
        });
}

void InputFiles::AddMaximumBytesTo(CLI::App& command, std::uint64_t& maximumBytes)
{
    command.add_option("--max-bytes", maximumBytes, "The most that a document may have, 64M unless said otherwise")
        ->type_name("N")
        ->transform(CLI::AsSizeValue(false).description(""));
}

void InputFiles::RequireOneStandardInput(const std::vector<std::string>& names)
{
    if (std::count(names.begin(), names.end(), Input::standardInput) > 1)
        throw CLI::ValidationError("FILE", "standard input (-) can be read only once");
}

ExitStatus InputFiles::ForEachDocument(Output& output, const Handler& handle) const
{
    const auto read = [&](const std::string& name)
    {
        return areLines_ ? ReadLines(name, maximumBytes_, output, handle)
                         : ReadWhole(
                               name, maximumBytes_, [&output] { output.Flush(); }, handle);
    };
    if (names_.empty())
        return read(Input::standardInput);
    auto status = ExitStatus::Success;
    for (const auto& name : names_)
        status = std::max(status, read(name));
    return status;
}

ExitStatus InputFiles::ReadWhole(const std::string& name, std::uint64_t maximumBytes,
                                 const std::function<void()>& beforeReading, const Handler& handle)
try
{
    Input input(name, beforeReading);
    std::string text;
    const auto part = input.ReadAll(text, maximumBytes);
    SourceText source;
    source.text = text;
    source.file = Input::DisplayName(name);
    return HandlePart(part, source, maximumBytes, handle);
}
catch (const InputError& error)
{
    return ReportUnreadable(name, error);
}

ExitStatus InputFiles::ReadLines(const std::string& name, std::uint64_t maximumBytes, Output& output,
                                 const Handler& handle)
try
{
    Input input(name, [&output] { output.Flush(); });
    std::string text;
    SourceText source;
    source.file = Input::DisplayName(name);
    source.isLine = true;
    auto status = ExitStatus::Success;
    for (auto part = input.ReadLine(text, maximumBytes); part != Input::Part::None;
         part = input.ReadLine(text, maximumBytes), ++source.firstLine)
    {
        source.text = text;
        if (part != Input::Part::Complete || text.find_first_not_of(" \t") != std::string::npos)
            status = std::max(status, HandlePart(part, source, maximumBytes, handle));
    }
    return status;
}
catch (const InputError& error)
{
    return ReportUnreadable(name, error);
}

} // namespace TarvonelJson
