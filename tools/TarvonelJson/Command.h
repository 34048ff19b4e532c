#pragma once

#include <TarvonelJson/ExitStatus.h>
#include <TarvonelJson/Output.h>

#include <CLI/App.hpp>

#include <string>

namespace TarvonelJson
{

/// A subcommand: declares its arguments and runs with them.
class Command
{
public:
    virtual ~Command();
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    /// Whether the command line names this command.
    bool IsChosen() const { return app_.parsed(); }

    virtual ExitStatus Run(Output& output) const = 0;

protected:
    Command(CLI::App& program, const std::string& name, const std::string& description, const std::string& footer);

    CLI::App& Arguments() { return app_; }

private:
    CLI::App& app_;
};

} // namespace TarvonelJson
