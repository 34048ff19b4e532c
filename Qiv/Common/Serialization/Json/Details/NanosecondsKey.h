#pragma once

#include <string_view>

namespace Qiv::Common::Serialization::Json::Details
{

/// The key of the number in time points and durations.
inline constexpr std::string_view nanosecondsKey = "value";

} // namespace Qiv::Common::Serialization::Json::Details
