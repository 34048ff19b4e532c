#pragma once

#include <TarvonelJson/ExitStatus.h>
#include <TarvonelJson/Output.h>

#include <cstdint>
#include <string>
#include <vector>

namespace TarvonelJson
{

/// What `merge --ndjson` is asked for.
struct MergeLinesOptions
{
    std::vector<std::string> names;
    std::uint64_t maximumBytes = 0; ///< of a line
    bool isQuiet = false;
    bool isStrict = false;
};

/// Applies the lines of all files to an empty mirror and writes its state. The memory needed is that of the state and
/// of the longest line.
ExitStatus MergeLines(const MergeLinesOptions& options, Output& output);

} // namespace TarvonelJson
