#include <TarvonelJson/UsageError.h>

#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Printable.h>
#include <TarvonelJson/Suggestion.h>

#include <algorithm>
#include <vector>

namespace TarvonelJson
{

namespace
{

std::vector<std::string> OptionsOf(const CLI::App& app)
{
    std::vector<std::string> names;
    for (const auto* const option : app.get_options())
    {
        for (const auto& name : option->get_lnames())
            names.push_back("--" + name);
    }
    return names;
}

/// What the parser could not place: an option without its value, or "" when that is not the fault.
std::string UnknownOption(const CLI::App& app)
{
    for (const auto& argument : app.remaining())
    {
        if (argument.size() > 1 && argument[0] == '-')
            return argument.substr(0, argument.find('='));
    }
    return "";
}

void ReportWhereToReadMore(const CLI::App& app)
{
    const auto* const parent = app.get_parent();
    Report("see " + (parent != nullptr ? parent->get_name() + ' ' : "") + app.get_name() + " --help");
}

} // namespace

void ReportUnknownCommand(const CLI::App& program, const std::string& name)
{
    std::vector<std::string> names;
    for (const auto* const command : program.get_subcommands([](const CLI::App*) { return true; }))
        names.push_back(command->get_name());
    Report("there is no command " + Shortened(name) + Suggestion(name, names));
    ReportWhereToReadMore(program);
}

void ReportUsageError(const CLI::App& program, const CLI::ParseError& error, int argc, const char* const* argv)
{
    const auto chosen = program.get_subcommands();
    const auto& app = chosen.empty() ? program : *chosen.front();
    if (const auto option = UnknownOption(app); !option.empty())
    {
        Report("there is no option " + Shortened(option) + Suggestion(option, OptionsOf(app)));
        return ReportWhereToReadMore(app);
    }
    const auto* const word =
        std::find_if(argv + 1, argv + argc, [](const std::string& argument) { return argument.substr(0, 1) != "-"; });
    if (chosen.empty() && word != argv + argc)
        return ReportUnknownCommand(program, *word);
    if (chosen.empty())
        Report("a command is missing");
    else
        Report(error.what());
    ReportWhereToReadMore(app);
}

} // namespace TarvonelJson
