#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>

#include <string>

namespace Qiv::Common::Serialization::Json::Details
{

Result InvalidType(std::string_view type, std::string_view expected)
{
    return std::string("Invalid type ").append(type).append(" : ").append(expected).append(" expected");
}

std::size_t FindMembers(ValueView json, const KeyTable& keys, ValueView* members) noexcept
{
    return json.VisitMembers(
        [&](std::string_view name, ValueView member)
        {
            if (const auto index = keys.Find(name); index != KeyTable::notFound)
                members[index] = member;
        });
}

} // namespace Qiv::Common::Serialization::Json::Details
