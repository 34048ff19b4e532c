#include <Qiv/Common/Serialization/Json/KnownMembers.h>

#include <cstring>
#include <string>

namespace Qiv::Common::Serialization::Json
{

Result CheckType(const JsonObject* type, std::string_view expected)
{
    const auto found = IfText(type);
    if (!found || *found == expected)
        return {};
    return std::string("Invalid type ").append(*found).append(" : ").append(expected).append(" expected");
}

namespace
{

// KeyPrefix at run time, without a loop.
std::uint64_t LoadKeyPrefix(std::string_view key) noexcept
{
    const auto load4 = [&key](std::size_t at) -> std::uint64_t
    {
        std::uint32_t bytes = 0;
        std::memcpy(&bytes, key.data() + at, sizeof bytes);
        return __builtin_bswap32(bytes);
    };
    const auto size = key.size();
    if (size >= 8)
        return load4(0) << 32U | load4(4);
    if (size >= 4)
        return load4(0) << 32U | load4(size - 4) << (8 * (8 - size));
    return KeyPrefix(key);
}

// Less than, equal to or greater than 0 as `key` orders before, is, or orders behind `name`. The prefix decides for
// almost all keys.
int Compare(const KnownKey& key, std::string_view name, std::uint64_t prefix) noexcept
{
    if (key.prefix != prefix)
        return key.prefix < prefix ? -1 : 1;
    if (key.text.size() <= sizeof prefix && name.size() <= sizeof prefix)
        return static_cast<int>(key.text.size()) - static_cast<int>(name.size());
    return key.text.compare(name);
}

} // namespace

bool FindMembers(const JsonObject& json, const KnownKey* ascendingKeys, std::size_t keyCount,
                 const JsonObject** members) noexcept
{
    // begin() and size() would take an array too.
    if (!json.isObject())
        return false;

    const auto* key = ascendingKeys;
    const auto* const lastKey = ascendingKeys + keyCount;
    const auto size = json.size();
    auto member = json.begin();
    for (auto left = size; left != 0; --left, ++member)
    {
        const char* nameEnd = nullptr;
        const char* const nameBegin = member.memberName(&nameEnd);
        const std::string_view name(nameBegin, static_cast<std::size_t>(nameEnd - nameBegin));
        const auto prefix = LoadKeyPrefix(name);

        int order = -1;
        while (key != lastKey && (order = Compare(*key, name, prefix)) < 0)
            ++key;
        if (key == lastKey)
            break;
        if (order == 0)
            members[key++ - ascendingKeys] = &*member;
    }
    return size != 0;
}

} // namespace Qiv::Common::Serialization::Json
