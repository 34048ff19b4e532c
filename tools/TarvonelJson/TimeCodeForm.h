#pragma once

#include <string>
#include <string_view>

namespace TarvonelJson
{

/// What does not fit in a text that is no time code: the two forms, and the first character that is in the way.
std::string WhyNoTimeCode(std::string_view text);

} // namespace TarvonelJson
