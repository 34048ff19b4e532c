#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>
#include <Qiv/Common/Serialization/Result.h>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Qiv::Common::Serialization::Json::Details
{
namespace
{

static_assert(!std::is_constructible_v<Result, bool> && !std::is_constructible_v<Result, bool, std::string>);

TEST(Result, IsAFailureExactlyWhenAMessageIsGiven)
{
    const char* const null = nullptr;
    const std::pair<Result, const char*> failures[] = {
        {"Bad format", "Bad format"}, {std::string("Node is null"), "Node is null"}, {"", ""}, {null, ""}};
    for (const auto& [result, message] : failures)
    {
        Result assigned;
        assigned = result;
        const auto& self = assigned;
        assigned = self;
        for (const auto& each : {result, assigned}) // copies of them
        {
            EXPECT_FALSE(each);
            EXPECT_STREQ(each.ErrorMessage(), message);
        }
        assigned = Result();
        EXPECT_TRUE(assigned);
        EXPECT_STREQ(assigned.ErrorMessage(), "");
    }
}

struct TestForm : JsonForm<TestForm>
{
    static constexpr Member a{"a", JsonType::Any};
    static constexpr Member ab{"ab", JsonType::Any};
    static constexpr Member b{"b", JsonType::Any};
    static constexpr Member z{"z\xC3\xA9", JsonType::Any};
    static constexpr auto members = ListOf(type, a, ab, b, z);
};

TEST(KnownMembers, FindsWhatALookUpPerKeyFinds)
{
    // Every subset of the known keys, of texts like them, and of null members.
    const std::string candidates[] = {"_type", "a",    "ab",   "b", "z\xC3\xA9", "", "A", "aa", std::string("a\0", 2),
                                      "z",     "\xFF", "_tape"};
    for (unsigned subset = 0; subset < 1U << std::size(candidates); ++subset)
    {
        JsonObject json(::Json::objectValue);
        for (std::size_t i = 0; i < std::size(candidates); ++i)
        {
            if ((subset >> i & 1U) != 0)
                json[candidates[i]] = (subset + i) % 3 == 0 ? JsonObject() : JsonObject(static_cast<int>(i));
        }
        const KnownMembers<TestForm> members(json);
        const ValueView found[] = {members.Get<TestForm::a>(), members.Get<TestForm::ab>(), members.Get<TestForm::b>(),
                                   members.Get<TestForm::z>()};
        for (std::size_t i = 0; i < std::size(found); ++i)
        {
            const auto& candidate = candidates[i + 1];
            const auto* const expected =
                json.isMember(candidate) && !json[candidate].isNull() ? &json[candidate] : nullptr;
            ASSERT_EQ(found[i].Tree(), expected) << candidate << " of " << json.toStyledString();
        }
    }
}

TEST(KeyTable, ComparesEveryCharacterAndReadsNoFurther)
{
    // Of lengths around those of machine words.
    static constexpr std::array<std::string_view, 10> keys{{"a", "id", "xyz", "name", "_type", "inPoint", "outPoint",
                                                            "sequences", "todTimecodeOnAir", "userTimecodeOnAir"}};
    static constexpr KeyTable table(keys);
    for (std::size_t i = 0; i < keys.size(); ++i)
    {
        // Of its own memory, which ends where the text does.
        std::vector<char> text(keys[i].begin(), keys[i].end());
        const auto find = [&table = table, &text] { return table.Find({text.data(), text.size()}); };
        EXPECT_EQ(find(), i);
        for (auto& character : text)
        {
            character ^= 1;
            EXPECT_EQ(find(), KeyTable::notFound) << keys[i];
            character ^= 1;
        }
        text.push_back(text.back());
        EXPECT_EQ(find(), KeyTable::notFound) << keys[i];
    }
}

} // namespace
} // namespace Qiv::Common::Serialization::Json::Details
