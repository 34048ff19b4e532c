#pragma once

#include <TarvonelJson/Command.h>
#include <TarvonelJson/InputFiles.h>
#include <TarvonelJson/Losses.h>

namespace TarvonelJson
{

/// `convert`: reads each document and writes it as the library does.
class ConvertCommand : public Command
{
public:
    explicit ConvertCommand(CLI::App& program);

    ExitStatus Run(Output& output) const override;

private:
    ExitStatus Convert(const SourceText& source, Output& output, Losses& losses) const;

    InputFiles files_;
    bool isPretty_ = false;
    bool isQuiet_ = false;
    bool isStrict_ = false;
};

} // namespace TarvonelJson
