#include <Qiv/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Utf8String.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <mutex>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
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

TEST(Identifier, GeneratesDistinctUuidsInSeveralThreads)
{
    std::set<std::string> all;
    std::mutex mutex;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
    {
        threads.emplace_back(
            [&]
            {
                for (int count = 0; count < 250; ++count)
                {
                    const std::string text = Identifier::Generate();
                    const std::lock_guard<std::mutex> lock(mutex);
                    all.insert(text);
                }
            });
    }
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(all.size(), 1000u);
    const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    std::set<char> digitsSeen[36];
    for (const auto& text : all)
    {
        EXPECT_TRUE(std::regex_match(text, form)) << text;
        for (std::size_t i = 0; i < text.size(); ++i)
            digitsSeen[i].insert(text[i]);
    }
    for (std::size_t i = 0; i < 36; ++i) // every place varies over its whole range
        EXPECT_EQ(digitsSeen[i].size(), i == 8 || i == 13 || i == 14 || i == 18 || i == 23 ? 1u
                                        : i == 19                                          ? 4u
                                                                                           : 16u)
            << i;
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

TEST(FullyQualifiedName, JoinsPartsAndOrdersBytes)
{
    using Name = FullyQualifiedName;
    const struct
    {
        Name actual;
        const char* expected;
    } rows[] = {
        {Name::Concat("a.b", 'c'), "a.bc"},
        {Name::Concat("a.b", "cd"), "a.bcd"},
        {Name::Concat("a", -12), "a-12"},
        {Name::Concat("a", 4294967295u), "a4294967295"},
        {Name::Combine("a", '.', "b"), "a.b"},
        {Name::Combine("", '/', ""), "/"},
        {Name::Combine("a", '#', -2147483647 - 1), "a#-2147483648"},
        {Name::Combine("a", '#', 4294967295u), "a#4294967295"},
        {Name::CombinePath("a.b", "c.d"), "a.b.c.d"},
        {Name::CombinePath("", "c"), "c"},
        {Name::CombinePath("a", ""), "a"},
        {Name::Empty(), ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.actual.Value(), row.expected);
    const std::vector<Name> ascending = {Name(), Name("a"), Name("a.b"), Name("aa"), Name("b"), Name("\xC3")};
    for (std::size_t i = 0; i < ascending.size(); ++i)
    {
        for (std::size_t j = 0; j < ascending.size(); ++j)
        {
            const auto& left = ascending[i];
            const auto& right = ascending[j];
            EXPECT_EQ(left < right, i < j);
            EXPECT_EQ(left <= right, i <= j);
            EXPECT_EQ(left > right, i > j);
            EXPECT_EQ(left >= right, i >= j);
            EXPECT_EQ(left == right, i == j);
            EXPECT_EQ(left != right, i != j);
        }
    }
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
        EXPECT_EQ(&*reference, entity.get());
        EXPECT_EQ(reference->Id(), Identifier("e"));
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
    using Reference = SharedReference<Entity>;
    Reference reference;
    EXPECT_TRUE(reference.IsEmpty());
    EXPECT_FALSE(reference);
    EXPECT_FALSE(Reference(Identifier("x")).IsEmpty());
    EXPECT_FALSE(Reference(MakeEntity("")).IsEmpty());
    for (int access = 0; access < 2; ++access)
    {
        try
        {
            static_cast<void>(access == 0 ? reference.Value() : *reference.operator->());
            ADD_FAILURE() << "nothing thrown";
        }
        catch (const std::runtime_error& error)
        {
            EXPECT_STREQ(error.what(), "null pointer");
        }
    }
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

} // namespace
} // namespace Qiv::BusinessEntityModel::BaseTypes
