#pragma once

#include <Qiv/Common/Serialization/Export.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>

#include <cstdint>
#include <string_view>

namespace Qiv::Common::Serialization::Json
{

/// Writes the family's JSON form of a count of nanoseconds, for example `{"_type":"Duration","value":"40000000"}`. The
/// number stands in a string, since many JSON libraries keep numbers to 53 bits only.
QIV_COMMON_SERIALIZATION_EXPORT void AppendNanosecondsObject(Stringer& stringer, std::string_view type,
                                                             std::int64_t nanoseconds);

} // namespace Qiv::Common::Serialization::Json
