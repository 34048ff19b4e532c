#pragma once

#include <TarvonelJson/Command.h>
#include <TarvonelJson/InputFiles.h>

namespace TarvonelJson
{

/// `convert`: reads each document and writes it as the library does.
class ConvertCommand : public Command
{
public:
    explicit ConvertCommand(CLI::App& program);

    ExitStatus Run(Output& output) const override;

private:
    bool Convert(const SourceText& source, Output& output) const;

    InputFiles files_;
    bool isPretty_ = false;
};

} // namespace TarvonelJson
