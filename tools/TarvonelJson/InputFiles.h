#pragma once

#include <TarvonelJson/Output.h>
#include <TarvonelJson/SourceText.h>

#include <CLI/App.hpp>

#include <functional>
#include <string>
#include <vector>

namespace TarvonelJson
{

/// The arguments `[--ndjson] [FILE|-]...` of a command, and the documents in those files.
class InputFiles
{
public:
    void AddTo(CLI::App& command);

    /// Calls `handle` with each document in turn and returns false when not all could be read, which is reported. What
    /// was written to `output` so far is on its way before the next document is waited for.
    bool ForEachDocument(Output& output, const std::function<void(const SourceText&)>& handle) const;

    /// Throws CLI::ValidationError when "-" stands twice among the names: standard input can be read only once.
    static void RequireOneStandardInput(const std::vector<std::string>& names);

private:
    bool ReadFile(const std::string& name, Output& output, const std::function<void(const SourceText&)>& handle) const;

    std::vector<std::string> names_;
    bool areLines_ = false;
};

} // namespace TarvonelJson
