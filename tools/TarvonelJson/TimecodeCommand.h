#pragma once

#include <TarvonelJson/Command.h>

#include <string>
#include <vector>

namespace TarvonelJson
{

/// `timecode`: explains time codes.
class TimecodeCommand : public Command
{
public:
    explicit TimecodeCommand(CLI::App& program);

    ExitStatus Run(Output& output) const override;

private:
    std::vector<std::string> texts_;
};

} // namespace TarvonelJson
