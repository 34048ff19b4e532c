#pragma once

#include <TarvonelJson/Command.h>
#include <TarvonelJson/InputFiles.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>

#include <cstdint>
#include <string>

namespace TarvonelJson
{

/// `diff`: writes the update that takes a channel from one state to another.
class DiffCommand : public Command
{
public:
    explicit DiffCommand(CLI::App& program);

    ExitStatus Run(Output& output) const override;

private:
    ExitStatus Compare(const Qiv::DataModel::Tarvonel::MediaIOs::MediaIO& before, const SourceText& source,
                       Output& output) const;

    std::string before_;
    std::string after_;
    std::uint64_t maximumBytes_ = InputFiles::defaultMaximumBytes;
    bool isPretty_ = false;
};

} // namespace TarvonelJson
