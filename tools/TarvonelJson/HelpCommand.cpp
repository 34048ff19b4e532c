#include <TarvonelJson/HelpCommand.h>

#include <TarvonelJson/UsageError.h>

namespace TarvonelJson
{

HelpCommand::HelpCommand(CLI::App& program)
    : Command(program, "help", "Tell how a command is used", "The same as COMMAND --help."), program_(program)
{
    Arguments().add_option("COMMAND", command_, "The command; the program when none is named")->type_name("");
}

ExitStatus HelpCommand::Run(Output& output) const
{
    if (command_.empty())
    {
        // Asked itself, the program would tell of the command that was chosen, which is this one.
        output.Write(program_.get_formatter()->make_help(&program_, program_.get_name(), CLI::AppFormatMode::Normal));
        return ExitStatus::Success;
    }
    for (const auto* const command : program_.get_subcommands([](const CLI::App*) { return true; }))
    {
        if (command->get_name() == command_)
        {
            output.Write(command->help(program_.get_name()));
            return ExitStatus::Success;
        }
    }
    ReportUnknownCommand(program_, command_);
    return ExitStatus::Trouble;
}

} // namespace TarvonelJson
