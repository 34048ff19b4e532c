#include <TarvonelJson/InputFiles.h>

#include <TarvonelJson/Input.h>

#include <algorithm>
#include <string>

namespace TarvonelJson
{

void InputFiles::AddTo(CLI::App& command)
{
    command.add_option("FILE", names_, "Files with one document each; - or no file at all is standard input")
        ->type_name("");
    command.add_flag("--ndjson", areLines_, "Each line of a file is a document, read and handled one by one");
    command.callback([this] { RequireOneStandardInput(names_); });
}

void InputFiles::RequireOneStandardInput(const std::vector<std::string>& names)
{
    if (std::count(names.begin(), names.end(), Input::standardInput) > 1)
        throw CLI::ValidationError("FILE", "standard input (-) can be read only once");
}

bool InputFiles::ForEachDocument(Output& output, const std::function<void(const SourceText&)>& handle) const
{
    if (names_.empty())
        return ReadFile(Input::standardInput, output, handle);
    bool areAllRead = true;
    for (const auto& name : names_)
        areAllRead = ReadFile(name, output, handle) && areAllRead;
    return areAllRead;
}

bool InputFiles::ReadFile(const std::string& name, Output& output,
                          const std::function<void(const SourceText&)>& handle) const
{
    SourceText source;
    source.file = Input::DisplayName(name);
    try
    {
        Input input(name, [&output] { output.Flush(); });
        std::string text;
        if (!areLines_)
        {
            text = input.ReadAll();
            source.text = text;
            handle(source);
            return true;
        }
        bool areAllRead = true;
        for (auto line = input.ReadLine(text); line != Input::Line::None;
             line = input.ReadLine(text), ++source.firstLine)
        {
            source.text = text;
            if (line == Input::Line::TooLong)
            {
                Report(source.MessageStart({}, "") + "the line is too long, at most " +
                       std::to_string(Input::maximumLineLength >> 20) + " MiB are read");
                areAllRead = false;
            }
            else if (text.find_first_not_of(" \t") != std::string::npos)
            {
                handle(source);
            }
        }
        return areAllRead;
    }
    catch (const InputError& error)
    {
        Report(source.file + ": " + error.what());
        return false;
    }
}

} // namespace TarvonelJson
