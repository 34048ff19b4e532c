#include <Qiv/Common/Serialization/Json/KnownMembers.h>

#include <string>

namespace Qiv::Common::Serialization::Json
{

Result InvalidType(std::string_view type, std::string_view expected)
{
    return std::string("Invalid type ").append(type).append(" : ").append(expected).append(" expected");
}

std::size_t FindMembers(const JsonObject& json, const KeyTable& keys, const JsonObject** members) noexcept
{
    return VisitMembers(json,
                        [&](std::string_view name, const auto& member)
                        {
                            if (const auto index = keys.Find(name); index != KeyTable::notFound)
                                members[index] = &*member;
                        });
}

} // namespace Qiv::Common::Serialization::Json
