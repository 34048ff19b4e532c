#pragma once

#include <Qiv/Common/Serialization/Export.h>
#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>

#include <cstdint>

namespace Qiv::Common::Serialization::Json
{

/// Writes the family's JSON form of a count of nanoseconds, for example `{"_type":"Duration","value":"40000000"}`. The
/// number stands in a string, since many JSON libraries keep numbers to 53 bits only.
QIV_COMMON_SERIALIZATION_EXPORT void AppendNanosecondsObject(Stringer& stringer, std::string_view type,
                                                             std::int64_t nanoseconds);

/// The keys of that form.
struct NanosecondsObjectKeys
{
    enum class Index
    {
        Type,
        Value
    };
    static constexpr std::array<std::string_view, 2> names{"_type", "value"};
};

} // namespace Qiv::Common::Serialization::Json
