#pragma once

#include <Qiv/Common/Serialization/Export.h>
#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/Common/Serialization/Json/KeyTable.h>
#include <Qiv/Common/Serialization/Result.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Qiv::Common::Serialization::Json
{

/// True for what readers call "empty": null, any value that is not an object, and an object without members.
inline bool IsEmptyObject(const JsonObject& json) noexcept
{
    return json.type() != ::Json::objectValue || json.empty();
}

/// The member itself unless it is absent or JSON's null. Asks for the type, since each of jsoncpp's `is...` is two
/// calls.
inline const JsonObject* IfNotNull(const JsonObject* member) noexcept
{
    return member != nullptr && member->type() != ::Json::nullValue ? member : nullptr;
}

/// The member `key` of a JSON object; null when `json` is not an object, and when the member is absent or null.
/// Asks for the type first, since jsoncpp's own look-ups throw on arrays and scalars.
inline const JsonObject* FindMember(const JsonObject& json, std::string_view key) noexcept
{
    const auto* const member =
        json.type() == ::Json::objectValue ? json.find(key.data(), key.data() + key.size()) : nullptr;
    return IfNotNull(member);
}

// The questions that readers ask of a member. Each also answers for an absent one, a null pointer.

/// The member when it is of the type, otherwise null.
inline const JsonObject* IfType(const JsonObject* member, ::Json::ValueType type) noexcept
{
    return member != nullptr && member->type() == type ? member : nullptr;
}

/// The text of a JSON string, without a copy; it lives as long as the member is left alone.
inline std::optional<std::string_view> IfText(const JsonObject* member) noexcept
{
    const char* begin = nullptr;
    const char* end = nullptr;
    return member != nullptr && member->getString(&begin, &end)
               ? std::optional<std::string_view>(std::in_place, begin, static_cast<std::size_t>(end - begin))
               : std::nullopt;
}

/// The text of a JSON string, without a copy; it lives as long as `string` is left alone. Empty for any other type.
inline std::string_view TextOf(const JsonObject& string) noexcept
{
    return IfText(&string).value_or(std::string_view());
}

/// The value when jsoncpp calls it an integer of 32 bits, `isInt()` (so 3.0 is one).
inline std::optional<std::int32_t> IfInt(const JsonObject* member) noexcept
{
    if (member == nullptr)
        return std::nullopt;
    // Integers themselves, since `asInt` asks `isInt` once more.
    if (member->type() != ::Json::intValue)
        return member->isInt() ? std::optional<std::int32_t>(member->asInt()) : std::nullopt;
    const auto value = member->asLargestInt();
    const auto narrow = static_cast<std::int32_t>(value);
    return narrow == value ? std::optional<std::int32_t>(narrow) : std::nullopt;
}

/// The value of `true` or `false`; numbers are none.
inline std::optional<bool> IfBool(const JsonObject* member) noexcept
{
    return IfType(member, ::Json::booleanValue) ? std::optional<bool>(member->asBool()) : std::nullopt;
}

/// The failure "Invalid type X : Y expected".
[[gnu::cold]] QIV_COMMON_SERIALIZATION_EXPORT Result InvalidType(std::string_view type, std::string_view expected);

/// That failure when the text of the member "_type" is another one than the expected; success when it is that text, or
/// nothing because the member is no text or absent.
inline Result CheckType(std::optional<std::string_view> type, std::string_view expected)
{
    return !type || *type == expected ? Result() : InvalidType(*type, expected);
}

/// Calls `visit` with the name and the iterator of each member of an object, in ascending order of the names. Returns
/// the number of members; 0 for a value that is no object.
template <typename Visit>
std::size_t VisitMembers(const JsonObject& json, const Visit& visit)
{
    const std::size_t size = json.size(); // 0 for scalars
    if (size == 0)
        return 0;
    auto left = size;
    for (auto member = json.begin();; ++member)
    {
        const char* nameEnd = nullptr;
        const char* const nameBegin = member.memberName(&nameEnd);
        if (nameBegin == nullptr) // an array
            return 0;
        visit(std::string_view(nameBegin, static_cast<std::size_t>(nameEnd - nameBegin)), member);
        if (--left == 0)
            return size;
    }
}

/// Sets `members[i]` to the member with the i-th key of the table, and leaves it alone when there is none. What
/// `KnownMembers` does. Returns the number of all members of the object; 0 for a value that is none.
QIV_COMMON_SERIALIZATION_EXPORT std::size_t FindMembers(const JsonObject& json, const KeyTable& keys,
                                                        const JsonObject** members) noexcept;

/// The members of a JSON object that a reader knows, all found in one walk over the object.
///
/// `Keys` describes them: an enumeration `Keys::Index` and a `constexpr std::array<std::string_view, N> Keys::names` in
/// the same order. A value that is not an object has no members. A null member counts as absent.
///
/// For objects whose members are mostly known: then the walk costs less than half of one look-up per key. In objects
/// with many other members, `FindMember` is faster.
///
/// Never throws; refers to the object that it was made from.
template <typename Keys>
class KnownMembers
{
    static constexpr std::size_t count = Keys::names.size();
    static constexpr KeyTable keys{Keys::names};

public:
    using Index = typename Keys::Index;

    explicit KnownMembers(const JsonObject& json) noexcept { size_ = FindMembers(json, keys, members_.data()); }

    /// What IsEmptyObject says of the object.
    bool IsEmpty() const noexcept { return size_ == 0; }
    /// The number of all members, known or not.
    std::size_t Size() const noexcept { return size_; }

    // Always inline: merged copies of them for two sizes of key set make g++ warn of array bounds.

    /// The member, whatever its type; null when it is absent or null.
    [[gnu::always_inline]] const JsonObject* Any(Index key) const noexcept { return IfNotNull(Found(key)); }

    /// The member when it is of the type, otherwise null or nothing.
    [[gnu::always_inline]] const JsonObject* Object(Index key) const noexcept
    {
        return IfType(Found(key), ::Json::objectValue);
    }
    [[gnu::always_inline]] const JsonObject* Array(Index key) const noexcept
    {
        return IfType(Found(key), ::Json::arrayValue);
    }
    [[gnu::always_inline]] std::optional<std::string_view> Text(Index key) const noexcept { return IfText(Found(key)); }
    [[gnu::always_inline]] std::optional<std::int32_t> Int(Index key) const noexcept { return IfInt(Found(key)); }
    [[gnu::always_inline]] std::optional<bool> Bool(Index key) const noexcept { return IfBool(Found(key)); }

private:
    [[gnu::always_inline]] const JsonObject* Found(Index key) const noexcept
    {
        return members_[static_cast<std::size_t>(key)];
    }

    std::array<const JsonObject*, count> members_{};
    std::size_t size_ = 0;
};

} // namespace Qiv::Common::Serialization::Json
