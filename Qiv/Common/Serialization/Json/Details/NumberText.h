#pragma once

#include <Qiv/Common/Serialization/Export.h>

#include <string_view>

namespace Qiv::Common::Serialization::Json::Details
{

/// The double that is nearest to a number as JSON spells it, whatever the locale and the rounding mode. What is too
/// small becomes zero, what is too large infinity, each with the sign of the number.
QIV_COMMON_SERIALIZATION_EXPORT double RealOf(std::string_view spelling) noexcept;

} // namespace Qiv::Common::Serialization::Json::Details
