#include <TarvonelJson/Suggestion.h>

#include <algorithm>
#include <cctype>
#include <numeric>

namespace TarvonelJson
{

namespace
{

/// How many letters must be put in, left out or changed to make one text of the other, whatever their case.
std::size_t Distance(std::string_view left, std::string_view right)
{
    const auto lower = [](char letter) { return std::tolower(static_cast<unsigned char>(letter)); };
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i)
    {
        auto diagonal = row[0]++;
        for (std::size_t j = 0; j < right.size(); ++j)
        {
            const auto changed = diagonal + (lower(left[i]) == lower(right[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string Suggestion(std::string_view text, const std::vector<std::string>& words)
{
    const std::string* best = nullptr;
    std::size_t leastDistance = 0;
    for (const auto& word : words)
    {
        const auto longest = std::max(text.size(), word.size());
        if (longest > 2 * word.size()) // also keeps the work small
            continue;
        const auto distance = Distance(text, word);
        if (distance <= (word.size() + 1) / 3 && (best == nullptr || distance < leastDistance))
        {
            best = &word;
            leastDistance = distance;
        }
    }
    return best != nullptr ? "; did you mean " + *best + '?' : "";
}

} // namespace TarvonelJson
