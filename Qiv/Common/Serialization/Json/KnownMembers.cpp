#include <Qiv/Common/Serialization/Json/KnownMembers.h>

#include <string>

namespace Qiv::Common::Serialization::Json
{

Result CheckType(std::optional<std::string_view> type, std::string_view expected)
{
    if (!type || *type == expected)
        return {};
    return std::string("Invalid type ").append(*type).append(" : ").append(expected).append(" expected");
}

bool FindMembers(const JsonObject& json, const KeyTable& keys, const JsonObject** members) noexcept
{
    // begin() and size() would take an array too.
    if (json.type() != ::Json::objectValue)
        return false;

    auto left = json.size();
    if (left == 0)
        return false;
    for (auto member = json.begin();; ++member)
    {
        const char* nameEnd = nullptr;
        const char* const nameBegin = member.memberName(&nameEnd);
        const std::string_view name(nameBegin, static_cast<std::size_t>(nameEnd - nameBegin));
        const auto candidate = keys.Candidate(name);
        if (name == keys.Key(candidate))
            members[candidate] = &*member;
        if (--left == 0)
            return true;
    }
}

} // namespace Qiv::Common::Serialization::Json
