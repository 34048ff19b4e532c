#pragma once

#include <TarvonelJson/Command.h>

#include <string>

namespace TarvonelJson
{

/// `help`: prints what --help of a command prints.
class HelpCommand : public Command
{
public:
    explicit HelpCommand(CLI::App& program);

    ExitStatus Run(Output& output) const override;

private:
    CLI::App& program_;
    std::string command_;
};

} // namespace TarvonelJson
