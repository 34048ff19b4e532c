#pragma once

#include <TarvonelJson/CheckedFinding.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace TarvonelJson
{

/// Counts findings by file and by kind, for `check --summary`.
class FindingCounts
{
public:
    void Count(const SourceText& source, const std::vector<CheckedFinding>& findings);

    /// A line for each file in the order of reading, and one for all with the counts of the kinds.
    std::string AsText() const;
    /// The same as one JSON object.
    std::string AsJson() const;

private:
    struct Counts
    {
        std::int64_t documents = 0;
        std::int64_t findings = 0;
    };

    std::vector<std::pair<std::string, Counts>> files_;
    std::map<std::string, std::int64_t> kinds_;
    Counts all_;
};

} // namespace TarvonelJson
