#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace TarvonelJson
{

/// "; did you mean convert?" for the word that the text most resembles, nothing when it resembles none.
std::string Suggestion(std::string_view text, const std::vector<std::string>& words);

} // namespace TarvonelJson
