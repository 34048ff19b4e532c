#include <Qiv/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Optional.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVector.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVectorSharedPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVectorWeakPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Utf8String.h>

#include "ThrownText.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <regex>
#include <set>

namespace Qiv::BusinessEntityModel::BaseTypes
{
namespace
{

/// A number, and a share of a token that counts the living instances. The token is on the heap, so that an address
/// sanitizer sees a doubled destruction.
using Tracked = std::pair<int, std::shared_ptr<int>>;

struct Throwing
{
    Throwing() = default;
    Throwing(const Throwing&) { throw std::logic_error("copy"); }
    Throwing& operator=(const Throwing&) = default;
};

static_assert(std::is_nothrow_move_constructible_v<Optional<Tracked>>);
static_assert(std::is_nothrow_move_assignable_v<Optional<Tracked>>);
static_assert(!std::is_convertible_v<Optional<int>, bool>, "an optional number must not be taken for its presence");

TEST(Optional, BehavesAsTheStandardOneUnderRandomOperations)
{
    std::mt19937 random(20160321);
    const auto token = std::make_shared<int>();
    {
        Optional<Tracked> actual[2];
        std::optional<Tracked> expected[2];
        for (int step = 0; step < 20000; ++step)
        {
            const auto target = random() % 2;
            const auto source = random() % 2;
            const Tracked value(step, token);
            switch (random() % 7)
            {
                // clang-format off
            case 0: actual[target] = value, expected[target] = value; break;
            case 1: actual[target] = Tracked(value), expected[target] = value; break;
            case 2: actual[target] = actual[source], expected[target] = expected[source]; break;
            case 3: actual[target] = Optional<Tracked>(actual[source]), expected[target] = expected[source]; break;
            case 4: actual[target].Undefine(), expected[target].reset(); break;
            case 5: actual[target] = Optional<Tracked>::Null(), expected[target].reset(); break;
            default: std::swap(actual[0], actual[1]), std::swap(expected[0], expected[1]); break;
                // clang-format on
            }
            for (const auto i : {0, 1})
            {
                ASSERT_EQ(actual[i].HasValue(), expected[i].has_value()) << step;
                if (expected[i])
                {
                    ASSERT_EQ(actual[i].Value(), *expected[i]) << step;
                }
            }
            ASSERT_EQ(actual[0] == actual[1], expected[0] == expected[1]) << step;
        }
    }
    EXPECT_EQ(token.use_count(), 1);
    const Throwing value;
    Optional<Throwing> throwing;
    EXPECT_THROW(throwing = value, std::logic_error);
    EXPECT_THROW(Optional<Throwing>{value}, std::logic_error);
    EXPECT_FALSE(throwing.HasValue());
    Optional<Tracked> empty;
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { *std::as_const(empty); }),
              "Can't retrieve the value of a Null Optional value");
    EXPECT_THROW(empty->first = 1, std::runtime_error);
}

TEST(Identifier, GeneratesDistinctUuids)
{
    const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    std::set<std::string> all;
    std::set<std::pair<std::size_t, char>> seen;
    for (int i = 0; i < 1000; ++i)
    {
        const std::string text = *all.insert(Identifier::Generate()).first;
        EXPECT_TRUE(std::regex_match(text, form)) << text;
        for (std::size_t place = 0; place < text.size(); ++place)
            seen.emplace(place, text[place]);
    }
    EXPECT_EQ(all.size(), 1000u);
    EXPECT_EQ(seen.size(), 30u * 16 + 4 + 5); // 30 places of any digit, one of four digits, five fixed characters
}

TEST(Utf8String, IsMadeFromTextsAndBytes)
{
    const std::uint8_t bytes[] = {0xC3, 0xA4, 0x00, 'b', 0x00};
    EXPECT_EQ(Utf8String("a\0b", 3), std::string("a\0b", 3));
    EXPECT_EQ(Utf8String(bytes), "\xC3\xA4");
    EXPECT_EQ(Utf8String(bytes, 4), std::string("\xC3\xA4\0b", 4));
    EXPECT_EQ(Utf8String(static_cast<const char*>(nullptr)), "");
    EXPECT_EQ(Utf8String(static_cast<const std::uint8_t*>(nullptr), 0), "");
}

TEST(FullyQualifiedName, JoinsParts)
{
    using Name = FullyQualifiedName;
    const std::pair<Name, const char*> names[] = {
        {Name::Concat("a.b", 'c'), "a.bc"},
        {Name::Concat("a.b", "cd"), "a.bcd"},
        {Name::Concat("a", -12), "a-12"},
        {Name::Concat("a", 4294967295u), "a4294967295"},
        {Name::Combine("", '/', ""), "/"},
        {Name::Combine("a", '#', -12), "a#-12"},
        {Name::Combine("a", '#', 4294967295u), "a#4294967295"},
        {Name::CombinePath("a.b", "c.d"), "a.b.c.d"},
        {Name::CombinePath("", "c"), "c"},
        {Name::CombinePath("a", ""), "a"},
    };
    for (const auto& [name, text] : names)
        EXPECT_EQ(name.Value(), text);
}

struct Entity
{
    Identifier id;
    const Identifier& Id() const { return id; }
};

std::shared_ptr<Entity> MakeEntity(const std::string& id)
{
    return std::make_shared<Entity>(Entity{id});
}

TEST(SharedReference, TakesTheIdentifierOfEachObjectItIsGiven)
{
    using Reference = SharedReference<Entity>;
    const auto entity = MakeEntity("e");
    const std::weak_ptr<Entity> weak = entity;
    Reference assigned;
    EXPECT_TRUE(assigned.IsEmpty());
    EXPECT_FALSE(assigned);
    EXPECT_FALSE(Reference(MakeEntity("")).IsEmpty());
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { assigned.Value(); }), "null pointer");
    EXPECT_THROW(assigned->id = Identifier(), std::runtime_error);
    assigned = entity;
    Reference weaklyAssigned;
    weaklyAssigned = weak;
    for (const auto& reference : {Reference(entity), Reference(weak), assigned, weaklyAssigned})
    {
        EXPECT_EQ(reference.Id(), Identifier("e"));
        EXPECT_EQ(reference.Pointer(), entity);
    }
    Reference unique(std::make_unique<Entity>(Entity{Identifier("u")}));
    EXPECT_EQ(unique.Value().Id(), unique.Id());
    unique = std::make_unique<Entity>(Entity{Identifier("v")});
    EXPECT_EQ(unique.Id(), Identifier("v"));
    EXPECT_NE(unique, assigned);

    unique->id = Identifier("new");
    EXPECT_EQ(unique.Id(), Identifier("v"));
    unique.UpdateIdentifier();
    EXPECT_EQ(unique.Id(), Identifier("new"));

    // What has no object leaves an empty reference when assigned, and only the identifier when set.
    assigned = std::weak_ptr<Entity>();
    EXPECT_TRUE(assigned.IsEmpty());
    unique.Pointer(std::shared_ptr<Entity>());
    EXPECT_EQ(unique.Pointer(), nullptr);
    EXPECT_EQ(unique, Reference(Identifier("new")));
    EXPECT_TRUE(unique);
}

constexpr const char* duplicateText =
    "Qiv::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection";
constexpr const char* expiredText =
    "Qiv::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

TEST(SortedVector, BehavesAsASetUnderRandomOperations)
{
    std::mt19937 random(14);
    SortedVector<int> actual;
    std::set<int> expected;
    EXPECT_THROW(actual.Front(), std::out_of_range);
    EXPECT_THROW(actual.Back(), std::out_of_range);
    for (int step = 0; step < 5000; ++step)
    {
        const int item = static_cast<int>(random() % 40);
        const bool present = expected.count(item) != 0;
        ASSERT_EQ(actual.Find(item) != actual.end(), present);
        ASSERT_EQ(actual.ConstFind(item) != actual.cend(), present);
        if (random() % 2 == 0)
        {
            const auto text = ThrownText<std::runtime_error>([&] { actual.Insert(item); });
            ASSERT_EQ(text, present ? duplicateText : "nothing thrown");
            expected.insert(item);
        }
        else
        {
            ASSERT_EQ(actual.Replace(item), present);
            ASSERT_EQ(actual.Erase(item), expected.erase(item) != 0);
        }
        ASSERT_EQ(actual.Values(), std::vector<int>(expected.begin(), expected.end()));
        ASSERT_THROW(actual[expected.size()], std::out_of_range);
        if (expected.empty())
            continue;
        ASSERT_EQ(actual.Front(), *expected.begin());
        ASSERT_EQ(actual.Back(), *expected.rbegin());
    }
    actual.Values({3, 1, 2});
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { actual.Values({5, 4, 5}); }), duplicateText);
    EXPECT_EQ(actual.Values(), (std::vector<int>{1, 2, 3}));
    actual[0] = 9; // changed in place: out of order until Sort()
    actual.Sort();
    EXPECT_EQ(actual.Values(), (std::vector<int>{2, 3, 9}));
}

TEST(SortedVector, OrdersReferencesByTheBytesOfTheirIdentifiers)
{
    SortedVector<SharedReference<Entity>> references;
    for (const char* id : {"b", "\xC3\xA4", "ab", "a", "", "Z"})
        references.Insert(SharedReference<Entity>(Identifier(id)));
    std::string order;
    for (const auto& reference : references)
        order += reference.Id().Value() + '|';
    EXPECT_EQ(order, "|Z|a|ab|b|\xC3\xA4|");
    // The object does not count, only the identifier does.
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { references.Insert(MakeEntity("ab")); }), duplicateText);
    EXPECT_TRUE(references.Replace(MakeEntity("ab")));
    EXPECT_NE(references[3].Pointer(), nullptr);
}

TEST(SortedVectorOfPointers, OrdersByTheObjectsNullFirstAndRefusesExpiredOnes)
{
    const auto five = std::make_shared<int>(5), otherFive = std::make_shared<int>(5);
    auto seven = std::make_shared<int>(7);
    SortedVectorSharedPointer<int> pointers, others;
    pointers.Values({seven, nullptr, five});
    others.Values({otherFive, seven, nullptr});
    EXPECT_TRUE(pointers == others);
    for (const auto& present : {otherFive, std::shared_ptr<int>()})
        EXPECT_EQ(ThrownText<std::runtime_error>([&] { pointers.Insert(present); }), duplicateText);
    EXPECT_EQ(pointers.Values(), (std::vector<std::shared_ptr<int>>{nullptr, five, seven}));

    SortedVectorWeakPointer<int> weak;
    weak.Insert(seven);
    weak.Insert(five);
    EXPECT_EQ(weak.Front().lock(), five);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { weak.Insert(otherFive); }), duplicateText);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { weak.Insert(std::weak_ptr<int>()); }), expiredText);
    EXPECT_THROW(CompareEqualWeakPointer()(std::weak_ptr<int>(five), std::weak_ptr<int>()), std::runtime_error);
    pointers.Clear(), others.Clear(), seven.reset();
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { static_cast<void>(weak == weak); }), expiredText);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { weak.Sort(); }), expiredText);
    EXPECT_EQ(weak.Size(), 2);
    EXPECT_EQ(weak.Front().lock(), five);
}

} // namespace
} // namespace Qiv::BusinessEntityModel::BaseTypes
