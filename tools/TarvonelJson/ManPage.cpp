#include <TarvonelJson/ManPage.h>

#include <sstream>

namespace TarvonelJson
{

namespace
{

std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char character : text)
    {
        if (character == '\\')
            escaped += "\\e";
        else if (character == '-' || character == '\'')
            escaped += character == '-' ? "\\-" : "\\(aq";
        else
            escaped += character;
    }
    return escaped;
}

std::string Usage(const CLI::App& program, const CLI::App& command)
{
    auto usage = ".B " + Escaped(program.get_name() + ' ' + command.get_name()) + '\n' + "[\\fIOPTION\\fR]...";
    for (const auto* const option : command.get_options())
    {
        if (option->get_positional())
        {
            const bool isRequired = option->get_required();
            usage += isRequired ? " " : " [";
            usage += "\\fI" + option->get_name() + "\\fR";
            usage += isRequired ? "" : "]";
            usage += option->get_items_expected_max() > 1 ? "..." : "";
        }
    }
    return usage + '\n';
}

/// "-h, --help"
std::string Names(const CLI::Option& option)
{
    auto names = option.get_name(false, true);
    if (const auto comma = names.find(','); comma != std::string::npos)
        names.insert(comma + 1, " ");
    return names;
}

std::string Options(const CLI::App& app)
{
    std::string options;
    for (const auto* const option : app.get_options())
    {
        const bool isHelpOfCommand = app.get_parent() != nullptr && option == app.get_help_ptr();
        if (isHelpOfCommand || option->get_group().empty())
            continue;
        options += ".TP\n";
        if (option->get_positional())
            options += "\\fI" + option->get_name() + "\\fR";
        else
            options += "\\fB" + Escaped(Names(*option)) + "\\fR";
        if (!option->get_positional() && option->get_items_expected_max() > 0)
            options += " \\fI" + option->get_type_name() + "\\fR";
        options += '\n' + Escaped(option->get_description()) + ".\n";
    }
    return options;
}

/// Paragraphs of a footer: filled text, or as it stands where it is indented and under "Examples:".
std::string Paragraphs(const std::string& footer)
{
    std::string paragraphs = ".PP\n";
    bool isVerbatim = false;
    std::istringstream lines(footer);
    for (std::string line; std::getline(lines, line);)
    {
        const bool isIndented = line.rfind("  ", 0) == 0;
        if (isIndented != isVerbatim)
            paragraphs += isIndented ? ".RS\n.nf\n" : ".fi\n.RE\n";
        isVerbatim = isIndented;
        paragraphs += line.empty() ? ".PP" : Escaped(isIndented ? line.substr(2) : line);
        paragraphs += '\n';
    }
    return paragraphs + (isVerbatim ? ".fi\n.RE\n" : "");
}

} // namespace

std::string ManPage(const CLI::App& program)
{
    const auto name = Escaped(program.get_name());
    const auto commands = program.get_subcommands([](const CLI::App*) { return true; });
    auto page =
        ".TH TARVONEL\\-JSON 1\n.SH NAME\n" + name + " \\- " + Escaped(program.get_description()) + "\n.SH SYNOPSIS\n";
    for (const auto* const command : commands)
        page += Usage(program, *command) + ".br\n";
    page += ".SH DESCRIPTION\n" + Paragraphs(program.get_footer()) + ".SH OPTIONS\n" + Options(program);
    for (const auto* const command : commands)
    {
        page += ".SH COMMAND " + Escaped(command->get_name()) + '\n' + Escaped(command->get_description()) + ".\n" +
                Options(*command) + Paragraphs(command->get_footer());
    }
    return page;
}

} // namespace TarvonelJson
