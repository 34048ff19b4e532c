#include <Qiv/Common/Serialization/Json/FromJsonConverter.h>
#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/Common/Serialization/Json/ToJsonConverter.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>

namespace Qiv::Common::Serialization::Json
{
namespace
{

static_assert(std::is_convertible_v<const char*, Result> && std::is_convertible_v<std::string, Result>);
static_assert(std::is_convertible_v<Result, bool> && std::is_nothrow_default_constructible_v<Result>);
static_assert(!std::is_constructible_v<Result, bool> && !std::is_constructible_v<Result, bool, std::string>);
static_assert(std::is_base_of_v<Converter<::Json::Value, int>, FromJsonConverter<int>>);
static_assert(std::is_base_of_v<Converter<int, Stringer>, ToJsonConverter<int>>);
static_assert(std::is_same_v<FromJsonConverter<int>::FromType, JsonObject>);
static_assert(std::is_same_v<ToJsonConverter<int>::ToType, Stringer>);
static_assert(std::has_virtual_destructor_v<Converter<int, int>> && sizeof(Converter<int, int>) == sizeof(void*));

TEST(Result, IsAFailureExactlyWhenAMessageIsGiven)
{
    const char* const null = nullptr;
    const struct
    {
        Result result;
        bool succeeds;
        const char* message;
    } rows[] = {{Result(), true, ""},
                {Result("Bad format"), false, "Bad format"},
                {Result(std::string("Node is null")), false, "Node is null"},
                {Result(""), false, ""},
                {Result(null), false, ""}};
    for (const auto& row : rows)
    {
        const bool succeeds = row.result;
        EXPECT_EQ(succeeds, row.succeeds);
        EXPECT_STREQ(row.result.ErrorMessage(), row.message);
        const Result copy = row.result;
        EXPECT_EQ(copy.operator bool(), row.succeeds);
        EXPECT_STREQ(copy.ErrorMessage(), row.message);
    }
}

struct Appending : Converter<std::string, std::string>
{
    using Converter::To;
    Result To(const std::string& from, std::string& to) const override
    {
        to += from;
        return from.empty() ? Result("empty") : Result();
    }
};

struct AppendingTwice : Appending
{
    using Appending::To;
    Result To(const std::string& from, std::string& to) const override
    {
        const auto twice = from + from;
        return Appending::To(twice, to);
    }
};

TEST(Converter, ForwardsATemporaryVirtuallyWithoutMovingFromIt)
{
    const AppendingTwice converter;
    const Converter<std::string, std::string>& base = converter;
    std::string source = "a text too long for the small string buffer";
    const auto twice = source + source;
    std::string target;
    EXPECT_TRUE(base.To(std::move(source), target));
    EXPECT_EQ(target, twice);
    EXPECT_EQ(source + source, twice);
    EXPECT_STREQ(base.To(std::string(), target).ErrorMessage(), "empty");
    EXPECT_STREQ(base.GetLastConversionError(), "");
}

struct Keys
{
    enum class Index
    {
        Type,
        A,
        AB,
        B,
        Z
    };
    static constexpr std::array<std::string_view, 5> names{"_type", "a", "ab", "b", "z\xC3\xA9"};
};

TEST(KnownMembers, FindsWhatALookUpPerKeyFinds)
{
    // Every subset of the known keys, of their neighbours in the order, and of null members.
    const std::string candidates[] = {"_type", "a",   "ab", "b", "z\xC3\xA9", "", "A", "aa", std::string("a\0", 2),
                                      "z",     "\xFF"};
    for (unsigned subset = 0; subset < 1U << std::size(candidates); ++subset)
    {
        JsonObject json(::Json::objectValue);
        for (std::size_t i = 0; i < std::size(candidates); ++i)
        {
            if ((subset >> i & 1U) != 0)
                json[candidates[i]] = (subset + i) % 3 == 0 ? JsonObject() : JsonObject(static_cast<int>(i));
        }
        const KnownMembers<Keys> members(json);
        for (std::size_t i = 0; i < Keys::names.size(); ++i)
        {
            const auto* const member = members.Any(static_cast<Keys::Index>(i));
            ASSERT_EQ(member, FindMember(json, Keys::names[i])) << json.toStyledString();
            ASSERT_EQ(member != nullptr, json.isMember(candidates[i]) && !json[candidates[i]].isNull())
                << json.toStyledString();
        }
    }
}

TEST(KnownMembers, AsksForTheTypeOfAValueFirst)
{
    const JsonObject noObjects[] = {JsonObject(), 1, "a", true, 1.5, JsonObject(::Json::arrayValue)};
    for (const auto& json : noObjects)
    {
        EXPECT_TRUE(IsEmptyObject(json));
        EXPECT_EQ(FindMember(json, "a"), nullptr);
        EXPECT_EQ(KnownMembers<Keys>(json).Any(Keys::Index::A), nullptr);
    }
    const auto read = [](const JsonObject& value)
    {
        JsonObject json;
        json["a"] = value;
        const KnownMembers<Keys> members(json);
        const auto key = Keys::Index::A;
        return std::string(members.Text(key) ? "text " : "") + (members.Int(key) ? "int " : "") +
               (members.Bool(key) ? "bool " : "") + (members.Object(key) != nullptr ? "object " : "") +
               (members.Array(key) != nullptr ? "array " : "");
    };
    EXPECT_EQ(read("") + read(INT32_MIN) + read(3.0) + read(false), "text int int bool ");
    EXPECT_EQ(read(JsonObject(::Json::objectValue)) + read(JsonObject(::Json::arrayValue)), "object array ");
    EXPECT_EQ(read(JsonObject()) + read(2147483648U) + read(2.5) + read(JsonObject::Int64{1} << 40), "");

    const JsonObject other("Nodes");
    EXPECT_STREQ(CheckType(&other, "Node").ErrorMessage(), "Invalid type Nodes : Node expected");
    EXPECT_TRUE(CheckType(&other, "Nodes"));
    EXPECT_TRUE(CheckType(&noObjects[1], "Node"));
    EXPECT_TRUE(CheckType(nullptr, "Node"));
}

} // namespace
} // namespace Qiv::Common::Serialization::Json
