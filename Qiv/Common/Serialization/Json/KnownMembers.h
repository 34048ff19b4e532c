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

/// The failure of a reader whose "_type" member is not its own: "Invalid type X : Y expected".
QIV_COMMON_SERIALIZATION_EXPORT Result InvalidType(std::string_view found, std::string_view expected);

namespace Details
{
QIV_COMMON_SERIALIZATION_EXPORT void FindMembers(const JsonObject& json, const std::string_view* ascendingKeys,
                                                 std::size_t keyCount, const JsonObject** members) noexcept;
}

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
        Details::FindMembers(json, Keys::names.data(), count, members_.data());
    }

    /// The member, whatever its type; null when it is absent or null.
    const JsonObject* Any(Index key) const noexcept { return members_[static_cast<std::size_t>(key)]; }

    /// The member when it is an object; otherwise null.
    const JsonObject* Object(Index key) const noexcept { return If(key, ::Json::objectValue); }

    /// The member when it is an array; otherwise null.
    const JsonObject* Array(Index key) const noexcept { return If(key, ::Json::arrayValue); }

    /// The member's text when it is a string; otherwise nothing.
    std::optional<std::string_view> Text(Index key) const noexcept
    {
        const auto* member = If(key, ::Json::stringValue);
        return member == nullptr ? std::nullopt : std::optional<std::string_view>(TextOf(*member));
    }

    /// The member's value when jsoncpp calls it an integer of 32 bits, `isInt()` (so 3.0 is one); otherwise nothing.
    std::optional<std::int32_t> Int(Index key) const noexcept
    {
        const auto* member = Any(key);
        return member != nullptr && member->isInt() ? std::optional<std::int32_t>(member->asInt()) : std::nullopt;
    }

    /// The member's value when it is `true` or `false`; otherwise nothing.
    std::optional<bool> Bool(Index key) const noexcept
    {
        const auto* member = If(key, ::Json::booleanValue);
        return member == nullptr ? std::nullopt : std::optional<bool>(member->asBool());
    }

    /// True when the member is a string other than `expected`; a member of another type is not checked.
    bool IsOtherText(Index key, std::string_view expected) const noexcept
    {
        const auto text = Text(key);
        return text.has_value() && *text != expected;
    }

private:
    const JsonObject* If(Index key, ::Json::ValueType type) const noexcept
    {
        const auto* member = Any(key);
        return member != nullptr && member->type() == type ? member : nullptr;
    }

    std::array<const JsonObject*, count> members_{};
};

} // namespace Qiv::Common::Serialization::Json
