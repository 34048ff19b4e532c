#pragma once

#include <TarvonelJson/Command.h>
#include <TarvonelJson/InputFiles.h>

#include <string>

namespace TarvonelJson
{

/// `check`: tells what is wrong with documents and what readers would pass over silently.
class CheckCommand : public Command
{
public:
    explicit CheckCommand(CLI::App& program);

    ExitStatus Run(Output& output) const override;
    ExitStatus StatusOfFailedOutput() const override { return ExitStatus::Usage; }

private:
    InputFiles files_;
    std::string outputForm_ = "text";
};

} // namespace TarvonelJson
