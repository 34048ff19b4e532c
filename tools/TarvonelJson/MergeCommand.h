#pragma once

#include <TarvonelJson/Command.h>
#include <TarvonelJson/InputFiles.h>
#include <TarvonelJson/Losses.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>

#include <cstdint>
#include <memory>
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
    using Channel = std::unique_ptr<Qiv::DataModel::Tarvonel::MediaIOs::MediaIO>;

    ExitStatus Merge(const SourceText& source, Channel& channel, Losses& losses) const;

    std::string base_;
    std::vector<std::string> updates_;
    std::uint64_t maximumBytes_ = InputFiles::defaultMaximumBytes;
    bool isPretty_ = false;
    bool isQuiet_ = false;
    bool isStrict_ = false;
    bool takesAnyIdentifier_ = false;
    bool areLines_ = false;
};

} // namespace TarvonelJson
