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
    const auto size = json.size(); // 0 for scalars
    if (size == 0)
        return 0;
    auto left = size;
    for (auto member = json.begin();; ++member)
    {
        const char* nameEnd = nullptr;
        const char* const nameBegin = member.memberName(&nameEnd);
        if (nameBegin == nullptr) // an array
            return 0;
        const std::string_view name(nameBegin, static_cast<std::size_t>(nameEnd - nameBegin));
        if (const auto index = keys.Find(name); index != KeyTable::notFound)
            members[index] = &*member;
        if (--left == 0)
            return size;
    }
}

} // namespace Qiv::Common::Serialization::Json
