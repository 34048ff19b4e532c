#pragma once

#include <TarvonelJson/Command.h>

#include <string>
#include <vector>

namespace TarvonelJson
{

/// `merge`: applies updates to a channel and writes the result.
class MergeCommand : public Command
{
public:
    explicit MergeCommand(CLI::App& program);

    ExitStatus Run(Output& output) const override;

private:
    std::string base_;
    std::vector<std::string> updates_;
    bool isPretty_ = false;
};

} // namespace TarvonelJson
