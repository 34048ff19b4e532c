#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace TarvonelJson
{

/// Counts what of documents does not come out again, and tells it at the end.
class Losses
{
public:
    /// `members` of a document were skipped or replaced by a default, of which `areAll` tells whether there are no
    /// more; `timeCodes` are written in a form that no reader takes.
    void Count(std::size_t members, std::size_t timeCodes, bool areAll = true);

    /// Writes on standard error what was counted, if anything.
    void Report() const;

private:
    std::int64_t members_ = 0;
    bool areAllMembers_ = true;
    std::int64_t documentsOfMembers_ = 0;
    std::int64_t timeCodes_ = 0;
    std::int64_t documentsOfTimeCodes_ = 0;
};

/// How many time codes without date are in a text that the writers wrote.
std::size_t CountLostTimeCodes(std::string_view written);

} // namespace TarvonelJson
