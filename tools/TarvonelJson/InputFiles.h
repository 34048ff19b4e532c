#pragma once

#include <TarvonelJson/ExitStatus.h>
#include <TarvonelJson/Output.h>
#include <TarvonelJson/SourceText.h>

#include <CLI/App.hpp>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace TarvonelJson
{

/// The arguments `[--ndjson] [--max-bytes N] [FILE|-]...` of a command, and the documents in those files.
class InputFiles
{
public:
    using Handler = std::function<ExitStatus(const SourceText&)>;

    void AddTo(CLI::App& command);

    /// Calls `handle` with each document in turn and returns the worst status; what could not be read is reported and
    /// counts as trouble, also what memory did not suffice to handle. What was written to `output` so far is on its way
    /// before the next document is waited for.
    ExitStatus ForEachDocument(Output& output, const Handler& handle) const;

    /// Throws CLI::ValidationError when "-" stands twice among the names: standard input can be read only once.
    static void RequireOneStandardInput(const std::vector<std::string>& names);

    /// The option `--max-bytes`.
    static void AddMaximumBytesTo(CLI::App& command, std::uint64_t& maximumBytes);
    static constexpr std::uint64_t defaultMaximumBytes = std::uint64_t{64} << 20;

    /// Handles a file that holds one document; `beforeReading` is called whenever reading may take its time.
    static ExitStatus ReadWhole(const std::string& name, std::uint64_t maximumBytes,
                                const std::function<void()>& beforeReading, const Handler& handle);

    /// Handles each line of a file that is not empty as a document.
    static ExitStatus ReadLines(const std::string& name, std::uint64_t maximumBytes, Output& output,
                                const Handler& handle);

private:
    std::vector<std::string> names_;
    std::uint64_t maximumBytes_ = defaultMaximumBytes;
    bool areLines_ = false;
};

} // namespace TarvonelJson
