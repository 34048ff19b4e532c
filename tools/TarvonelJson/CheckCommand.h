#pragma once

#include <TarvonelJson/Command.h>
#include <TarvonelJson/InputFiles.h>
#include <TarvonelJson/Level.h>

#include <string>

namespace TarvonelJson
{

/// `check`: tells what is wrong with documents and what readers would pass over silently.
class CheckCommand : public Command
{
public:
    explicit CheckCommand(CLI::App& program);

    ExitStatus Run(Output& output) const override;

private:
    InputFiles files_;
    std::string outputForm_ = "text";
    std::string failOn_ = "any";
    bool isQuiet_ = false;
    bool isSummary_ = false;
    bool printsAll_ = false;
};

} // namespace TarvonelJson
