#include <Qiv/Common/Serialization/Json/KnownMembers.h>

namespace Qiv::Common::Serialization::Json
{

Result CheckType(const JsonObject* type, std::string_view expected)
{
    const auto found = IfText(type);
    if (!found || *found == expected)
        return {};
    return std::string("Invalid type ").append(*found).append(" : ").append(expected).append(" expected");
}

void FindMembers(const JsonObject& json, const std::string_view* ascendingKeys, std::size_t keyCount,
                 const JsonObject** members) noexcept
{
    // Iterating and size() would take an array too, and find() throws on arrays and scalars.
    if (!json.isObject())
        return;

    std::size_t key = 0;
    auto member = json.begin();
    for (auto left = json.size(); left != 0; --left, ++member)
    {
        const char* nameEnd = nullptr;
        const char* const nameBegin = member.memberName(&nameEnd);
        const std::string_view name(nameBegin, static_cast<std::size_t>(nameEnd - nameBegin));

        int order = -1;
        while (key != keyCount && (order = ascendingKeys[key].compare(name)) < 0)
            ++key;
        if (key == keyCount)
            return;
        if (order == 0)
        {
            if (!member->isNull())
                members[key] = &*member;
            ++key;
        }
    }
}

} // namespace Qiv::Common::Serialization::Json
