#include <Qiv/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVector.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVectorSharedPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVectorWeakPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Utf8String.h>

#include "ThrownText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Qiv::BusinessEntityModel::BaseTypes
{
namespace
{

struct Entity
{
    Identifier id;
    const Identifier& Id() const { return id; }
};

std::shared_ptr<Entity> MakeEntity(const std::string& id)
{
    return std::make_shared<Entity>(Entity{id});
}

TEST(Identifier, GeneratesDistinctUuids)
{
    std::set<std::string> all;
    for (int i = 0; i < 1000; ++i)
        all.insert(Identifier::Generate());
    EXPECT_EQ(all.size(), 1000u);
    const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    std::set<std::pair<std::size_t, char>> seen;
    for (const auto& text : all)
    {
        EXPECT_TRUE(std::regex_match(text, form)) << text;
        for (std::size_t i = 0; i < text.size(); ++i)
            seen.emplace(i, text[i]);
    }
    EXPECT_EQ(seen.size(), 30u * 16 + 4 + 5); // 30 places of any digit, one of four digits, five fixed characters
}

TEST(Utf8String, IsMadeFromTextsAndBytes)
{
    const std::uint8_t bytes[] = {0xC3, 0xA4, 0x00, 'b', 0x00};
    EXPECT_EQ(Utf8String("ab"), "ab");
    EXPECT_EQ(Utf8String("a\0b", 3), std::string("a\0b", 3));
    EXPECT_EQ(Utf8String(std::string("a\0b", 3)).size(), 3u);
    EXPECT_EQ(Utf8String(bytes), "\xC3\xA4");
    EXPECT_EQ(Utf8String(bytes, 4), std::string("\xC3\xA4\0b", 4));
    EXPECT_EQ(Utf8String(static_cast<const char*>(nullptr)), "");
    EXPECT_EQ(Utf8String(static_cast<const std::uint8_t*>(nullptr), 0), "");
}

TEST(FullyQualifiedName, JoinsParts)
{
    using Name = FullyQualifiedName;
    EXPECT_EQ(Name::Concat("a.b", 'c'), Name("a.bc"));
    EXPECT_EQ(Name::Concat("a.b", "cd"), Name("a.bcd"));
    EXPECT_EQ(Name::Concat("a", -12), Name("a-12"));
    EXPECT_EQ(Name::Concat("a", 4294967295u), Name("a4294967295"));
    EXPECT_EQ(Name::Combine("", '/', ""), Name("/"));
    EXPECT_EQ(Name::Combine("a", '#', -12), Name("a#-12"));
    EXPECT_EQ(Name::Combine("a", '#', 4294967295u), Name("a#4294967295"));
    EXPECT_EQ(Name::CombinePath("a.b", "c.d"), Name("a.b.c.d"));
    EXPECT_EQ(Name::CombinePath("", "c"), Name("c"));
    EXPECT_EQ(Name::CombinePath("a", ""), Name("a"));
}

TEST(SharedReference, TakesTheIdentifierOfEachObjectItIsGiven)
{
    using Reference = SharedReference<Entity>;
    const auto entity = MakeEntity("e");
    const std::weak_ptr<Entity> weak = entity;
    Reference assigned;
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

    // What has no object leaves an empty reference when assigned, and only the identifier when set.
    assigned = std::weak_ptr<Entity>();
    EXPECT_TRUE(assigned.IsEmpty());
    unique.Pointer(std::shared_ptr<Entity>());
    EXPECT_EQ(unique.Pointer(), nullptr);
    EXPECT_EQ(unique, Reference(Identifier("v")));
}

TEST(SharedReference, IsEmptyWithoutIdentifierAndObject)
{
    SharedReference<Entity> reference;
    EXPECT_TRUE(reference.IsEmpty() && !reference);
    EXPECT_FALSE(SharedReference<Entity>(Identifier("x")).IsEmpty() ||
                 SharedReference<Entity>(MakeEntity("")).IsEmpty());
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { reference.Value(); }), "null pointer");
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { reference->id = Identifier(); }), "null pointer");
}

TEST(SharedReference, UpdatesItsIdentifierOnDemand)
{
    SharedReference<Entity> reference(MakeEntity("old"));
    reference->id = Identifier("new");
    EXPECT_EQ(reference.Id(), Identifier("old"));
    reference.UpdateIdentifier();
    EXPECT_EQ(reference.Id(), Identifier("new"));
    reference.Pointer() = nullptr;
    reference.UpdateIdentifier();
    EXPECT_EQ(static_cast<const Identifier&>(reference), Identifier("new"));
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
        ASSERT_EQ(actual.Size(), expected.size());
    }
}

TEST(SortedVector, ChecksEveryPosition)
{
    SortedVector<int> numbers;
    EXPECT_THROW(numbers.Front(), std::out_of_range);
    EXPECT_THROW(numbers.Back(), std::out_of_range);
    numbers.Insert(1);
    EXPECT_EQ(numbers.Front() + numbers.Back() + numbers[0] + numbers.At(0), 4);
    EXPECT_THROW(numbers[1], std::out_of_range);
    EXPECT_THROW(numbers.CheckIndex(static_cast<std::size_t>(-1)), std::out_of_range);
}

TEST(SortedVector, TakesAWholeSetOrLeavesTheElements)
{
    SortedVector<int> numbers;
    numbers.Values({3, 1, 2});
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { numbers.Values({5, 4, 5}); }), duplicateText);
    EXPECT_EQ(numbers.Values(), (std::vector<int>{1, 2, 3}));
    numbers[0] = 9; // changed in place: out of order until Sort()
    numbers.Sort();
    EXPECT_EQ(numbers.Values(), (std::vector<int>{2, 3, 9}));
}

TEST(SortedVector, OrdersReferencesByTheBytesOfTheirIdentifiers)
{
    using Reference = SharedReference<Entity>;
    SortedVector<Reference> references;
    for (const char* id : {"b", "\xC3\xA4", "ab", "a", "", "Z"})
        references.Insert(Reference(Identifier(id)));
    std::string order;
    for (const auto& reference : references)
        order += reference.Id().Value() + '|';
    EXPECT_EQ(order, "|Z|a|ab|b|\xC3\xA4|");
    // The object does not count, only the identifier does.
    EXPECT_EQ(
        ThrownText<std::runtime_error>([&] { references.Insert(std::make_shared<Entity>(Entity{Identifier("ab")})); }),
        duplicateText);
    EXPECT_TRUE(references.Replace(std::make_shared<Entity>(Entity{Identifier("ab")})));
    EXPECT_NE(references[3].Pointer(), nullptr);
}

TEST(SortedVectorSharedPointer, OrdersByTheObjectsAndNullFirst)
{
    SortedVectorSharedPointer<int> pointers;
    for (const int number : {7, 5, 6})
        pointers.Insert(std::make_shared<int>(number));
    pointers.Insert(nullptr);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { pointers.Insert(nullptr); }), duplicateText);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { pointers.Insert(std::make_shared<int>(6)); }), duplicateText);
    EXPECT_EQ(pointers.Front(), nullptr);
    EXPECT_EQ(*pointers[1], 5);
    EXPECT_EQ(*pointers.Back(), 7);

    SortedVectorSharedPointer<int> others;
    others.Values({std::make_shared<int>(7), std::make_shared<int>(6), nullptr, std::make_shared<int>(5)});
    EXPECT_TRUE(pointers == others);
}

TEST(SortedVectorWeakPointer, OrdersByTheObjectsAndRefusesExpiredOnes)
{
    const auto one = std::make_shared<int>(1);
    auto two = std::make_shared<int>(2);
    SortedVectorWeakPointer<int> pointers;
    pointers.Insert(two);
    pointers.Insert(one);
    EXPECT_EQ(pointers.Front().lock(), one);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { pointers.Insert(std::weak_ptr<int>()); }), expiredText);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { pointers.Insert(one); }), duplicateText);
    two.reset();
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { static_cast<void>(pointers == pointers); }), expiredText);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { pointers.Sort(); }), expiredText);
    EXPECT_EQ(pointers.Size(), 2u);
    EXPECT_EQ(pointers.Front().lock(), one);
}

} // namespace
} // namespace Qiv::BusinessEntityModel::BaseTypes
