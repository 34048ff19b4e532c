#pragma once

#include <Qiv/Common/Serialization/Export.h>
#include <Qiv/Common/Serialization/Json/JsonObject.h>
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
    return !json.isObject() || json.empty();
}

/// The text of a JSON string, without a copy; it lives as long as `string` is left alone. Asks for a string.
inline std::string_view TextOf(const JsonObject& string) noexcept
{
    const char* begin = nullptr;
    const char* end = nullptr;
    return string.getString(&begin, &end) ? std::string_view(begin, static_cast<std::size_t>(end - begin))
                                          : std::string_view();
}

/// The member `key` of a JSON object; null when `json` is not an object, and when the member is absent or null.
/// Asks for the type first, since jsoncpp's own look-ups throw on arrays and scalars.
inline const JsonObject* FindMember(const JsonObject& json, std::string_view key) noexcept
{
    const auto* const member = json.isObject() ? json.find(key.data(), key.data() + key.size()) : nullptr;
    return member != nullptr && !member->isNull() ? member : nullptr;
}

// The questions that readers ask of a member, which is null when it is absent or null. Each answers for that, too.

inline const JsonObject* IfType(const JsonObject* member, ::Json::ValueType type) noexcept
{
    return member != nullptr && member->type() == type ? member : nullptr;
}

inline std::optional<std::string_view> IfText(const JsonObject* member) noexcept
{
    return IfType(member, ::Json::stringValue) ? std::optional<std::string_view>(TextOf(*member)) : std::nullopt;
}

/// The value when jsoncpp calls it an integer of 32 bits, `isInt()` (so 3.0 is one).
inline std::optional<std::int32_t> IfInt(const JsonObject* member) noexcept
{
    return member != nullptr && member->isInt() ? std::optional<std::int32_t>(member->asInt()) : std::nullopt;
}

inline std::optional<bool> IfBool(const JsonObject* member) noexcept
{
    return IfType(member, ::Json::booleanValue) ? std::optional<bool>(member->asBool()) : std::nullopt;
}

/// The failure "Invalid type X : Y expected" when the member "_type" is a text X other than the expected Y; success
/// when it is that text, has another type, or is absent.
QIV_COMMON_SERIALIZATION_EXPORT Result CheckType(const JsonObject* type, std::string_view expected);

/// Sets `members[i]` to the member `ascendingKeys[i]` of a JSON object and leaves it alone when there is none.
/// What `KnownMembers` does, for keys in byte-wise ascending order.
QIV_COMMON_SERIALIZATION_EXPORT void FindMembers(const JsonObject& json, const std::string_view* ascendingKeys,
                                                 std::size_t keyCount, const JsonObject** members) noexcept;

/// The members of a JSON object that a reader knows, all found in one walk over the object.
///
/// `Keys` describes them: an enumeration `Keys::Index` and a `constexpr std::array<std::string_view, N> Keys::names` in
/// the same, byte-wise ascending order. The walk relies on jsoncpp keeping members in that order too, and costs about
/// half of one look-up per key. A value that is not an object has no members. A null member counts as absent.
///
/// Never throws; refers to the object that it was made from.
template <typename Keys>
class KnownMembers
{
    static constexpr std::size_t count = Keys::names.size();

    static constexpr bool IsAscending()
    {
        for (std::size_t i = 1; i < count; ++i)
            if (!(Keys::names[i - 1] < Keys::names[i]))
                return false;
        return true;
    }
    static_assert(IsAscending(), "list the keys in byte-wise ascending order");

public:
    using Index = typename Keys::Index;

    explicit KnownMembers(const JsonObject& json) noexcept
    {
        FindMembers(json, Keys::names.data(), count, members_.data());
    }

    // Always inline: merged copies of them for two sizes of key set make g++ warn of array bounds.

    /// The member, whatever its type; null when it is absent or null.
    [[gnu::always_inline]] const JsonObject* Any(Index key) const noexcept
    {
        return members_[static_cast<std::size_t>(key)];
    }

    /// The member when it is of the type, otherwise null or nothing.
    [[gnu::always_inline]] const JsonObject* Object(Index key) const noexcept
    {
        return IfType(Any(key), ::Json::objectValue);
    }
    [[gnu::always_inline]] const JsonObject* Array(Index key) const noexcept
    {
        return IfType(Any(key), ::Json::arrayValue);
    }
    [[gnu::always_inline]] std::optional<std::string_view> Text(Index key) const noexcept { return IfText(Any(key)); }
    [[gnu::always_inline]] std::optional<std::int32_t> Int(Index key) const noexcept { return IfInt(Any(key)); }
    [[gnu::always_inline]] std::optional<bool> Bool(Index key) const noexcept { return IfBool(Any(key)); }

private:
    std::array<const JsonObject*, count> members_{};
};

} // namespace Qiv::Common::Serialization::Json
