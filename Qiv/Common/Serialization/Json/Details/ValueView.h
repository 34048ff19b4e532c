#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Qiv::Common::Serialization::Json::Details
{

/// A JSON value that readers and the inspection look at, or none. Every question also answers for no value.
///
/// As large as a pointer or two: pass it by value. Refers to the document that it was made from.
class ValueView
{
public:
    /// No value.
    ValueView() noexcept = default;
    ValueView(const JsonObject& json) noexcept : json_(&json) {}

    /// Whether there is a value; JSON's null is one.
    explicit operator bool() const noexcept { return json_ != nullptr; }

    /// True for JSON's null and for no value.
    bool IsNull() const noexcept { return json_ == nullptr || json_->type() == ::Json::nullValue; }
    bool IsObject() const noexcept { return Is(::Json::objectValue); }
    bool IsArray() const noexcept { return Is(::Json::arrayValue); }
    bool IsText() const noexcept { return Is(::Json::stringValue); }

    /// Whether a number is written as a whole one: not 3.0, and not one beyond 64 bits.
    bool IsInteger() const noexcept { return Is(::Json::intValue) || Is(::Json::uintValue); }

    /// What readers call "empty": null, any value that is not an object, and an object without members.
    bool IsEmptyObject() const noexcept { return !IsObject() || json_->empty(); }

    /// The text of a JSON string, without a copy; it lives as long as the document is left alone.
    std::optional<std::string_view> Text() const noexcept
    {
        const char* begin = nullptr;
        const char* end = nullptr;
        return json_ != nullptr && json_->getString(&begin, &end)
                   ? std::optional<std::string_view>(std::in_place, begin, static_cast<std::size_t>(end - begin))
                   : std::nullopt;
    }

    /// The value when jsoncpp calls it an integer of 32 bits, `isInt()` (so 3.0 is one).
    std::optional<std::int32_t> Int32() const noexcept
    {
        if (json_ == nullptr)
            return std::nullopt;
        // Integers themselves, since `asInt` asks `isInt` once more.
        if (json_->type() != ::Json::intValue)
            return json_->isInt() ? std::optional<std::int32_t>(json_->asInt()) : std::nullopt;
        const auto value = json_->asLargestInt();
        const auto narrow = static_cast<std::int32_t>(value);
        return narrow == value ? std::optional<std::int32_t>(narrow) : std::nullopt;
    }

    /// The value when jsoncpp calls it an integer of 64 bits, `isInt64()`.
    std::optional<std::int64_t> Int64() const noexcept
    {
        return json_ != nullptr && json_->isInt64() ? std::optional<std::int64_t>(json_->asInt64()) : std::nullopt;
    }

    /// The value of `true` or `false`; numbers are none.
    std::optional<bool> Boolean() const noexcept
    {
        return Is(::Json::booleanValue) ? std::optional<bool>(json_->asBool()) : std::nullopt;
    }

    /// The text that jsoncpp makes of a text, a number, a boolean or null. Not for objects and arrays.
    std::string ScalarText() const { return json_->asString(); }

    /// The number of members or elements; 0 for any other value.
    std::size_t Size() const noexcept { return json_ != nullptr ? json_->size() : 0; }

    /// The member `key`, null ones included; no value when there is none, or this is no object.
    ValueView Find(std::string_view key) const noexcept
    {
        // Asks for the type first, since jsoncpp's own look-ups throw on arrays and scalars.
        const auto* const member = IsObject() ? json_->find(key.data(), key.data() + key.size()) : nullptr;
        return member != nullptr ? ValueView(*member) : ValueView();
    }

    /// Calls `visit` with the name and the value of each member of an object. Returns the number of members; 0 for a
    /// value that is no object.
    template <typename Visit>
    std::size_t VisitMembers(const Visit& visit) const
    {
        const auto size = Size();
        if (size == 0)
            return 0;
        auto left = size;
        for (auto member = json_->begin();; ++member)
        {
            const char* nameEnd = nullptr;
            const char* const nameBegin = member.memberName(&nameEnd);
            if (nameBegin == nullptr) // an array
                return 0;
            visit(std::string_view(nameBegin, static_cast<std::size_t>(nameEnd - nameBegin)), ValueView(*member));
            if (--left == 0)
                return size;
        }
    }

    /// Calls `visit` with the index and the value of each element of an array.
    template <typename Visit>
    void VisitElements(const Visit& visit) const
    {
        if (!IsArray())
            return;
        for (auto element = json_->begin(); element != json_->end(); ++element)
            visit(static_cast<std::size_t>(element.index()), ValueView(*element));
    }

    /// The value itself when it is one of jsoncpp's, otherwise null.
    const JsonObject* Tree() const noexcept { return json_; }

    /// Where the value starts in the text that it was parsed from, in bytes; 0 for a value that was never text.
    std::ptrdiff_t Offset() const noexcept { return json_ != nullptr ? json_->getOffsetStart() : 0; }

private:
    bool Is(::Json::ValueType type) const noexcept { return json_ != nullptr && json_->type() == type; }

    const JsonObject* json_ = nullptr;
};

} // namespace Qiv::Common::Serialization::Json::Details
