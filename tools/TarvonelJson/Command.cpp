#include <TarvonelJson/Command.h>

namespace TarvonelJson
{

Command::Command(CLI::App& program, const std::string& name, const std::string& description, const std::string& footer)
    : app_(*program.add_subcommand(name, description))
{
    app_.footer(footer);
}

Command::~Command() = default;

} // namespace TarvonelJson
