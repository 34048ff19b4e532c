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
    {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, key.data(), sizeof bytes);
        return __builtin_bswap64(bytes);
    }
    if (size >= 4)
        return load4(0) << 32U | load4(size - 4) << (8 * (8 - size));
    return KeyPrefix(key);
}

// Whether a key is `name`, when both have the same prefix.
bool HasSameRest(std::string_view key, std::string_view name) noexcept
{
    constexpr std::size_t prefixSize = sizeof KnownKey::prefix;
    if (key.size() != name.size())
        return false;
    if (key.size() <= prefixSize)
        return true;
    if (key.size() > 2 * prefixSize)
        return key == name;
    const auto last = key.size() - prefixSize; // the last eight bytes overlap the prefix
    return std::memcmp(key.data() + last, name.data() + last, prefixSize) == 0;
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

        for (; key != lastKey && key->prefix <= prefix; ++key)
        {
            if (key->prefix != prefix)
                continue;
            if (HasSameRest(key->text, name))
            {
                members[key++ - ascendingKeys] = &*member;
                break;
            }
            if (key->text > name)
                break;
        }
        if (key == lastKey)
            break;
    }
    return size != 0;
}

} // namespace Qiv::Common::Serialization::Json
