#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVector.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVectorSharedPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVectorWeakPointer.h>

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace Qiv::BusinessEntityModel::BaseTypes
{
namespace
{

constexpr const char* duplicateText =
    "Qiv::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection";
constexpr const char* expiredText =
    "Qiv::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

template <typename Action>
std::string RuntimeErrorOf(Action action)
{
    try
    {
        action();
    }
    catch (const std::runtime_error& error)
    {
        return error.what();
    }
    return "nothing thrown";
}

struct Entity
{
    Identifier id;
    const Identifier& Id() const { return id; }
};

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
            const auto text = RuntimeErrorOf([&] { actual.Insert(item); });
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
    numbers.Values({30, 10, 20});
    EXPECT_EQ(numbers.Front(), 10);
    EXPECT_EQ(numbers.Back(), 30);
    EXPECT_EQ(numbers[1], 20);
    EXPECT_NO_THROW(numbers.CheckIndex(2));
    EXPECT_THROW(numbers.CheckIndex(3), std::out_of_range);
    EXPECT_THROW(numbers[3], std::out_of_range);
    EXPECT_THROW(numbers.At(static_cast<std::size_t>(-1)), std::out_of_range);
}

TEST(SortedVector, TakesAWholeSetOrLeavesTheElements)
{
    SortedVector<int> numbers;
    numbers.Values({3, 1, 2});
    EXPECT_EQ(RuntimeErrorOf([&] { numbers.Values({5, 4, 5}); }), duplicateText);
    EXPECT_EQ(numbers.Values(), (std::vector<int>{1, 2, 3}));
    numbers[0] = 9; // changed in place: out of order until Sort()
    numbers.Sort();
    EXPECT_EQ(numbers.Values(), (std::vector<int>{2, 3, 9}));
    numbers[0] = 3;
    EXPECT_EQ(RuntimeErrorOf([&] { numbers.Sort(); }), duplicateText);
    numbers.Clear();
    EXPECT_TRUE(numbers.Empty());
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
    EXPECT_EQ(RuntimeErrorOf([&] { references.Insert(std::make_shared<Entity>(Entity{Identifier("ab")})); }),
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
    EXPECT_EQ(RuntimeErrorOf([&] { pointers.Insert(nullptr); }), duplicateText);
    EXPECT_EQ(RuntimeErrorOf([&] { pointers.Insert(std::make_shared<int>(6)); }), duplicateText);
    EXPECT_EQ(pointers.Front(), nullptr);
    EXPECT_EQ(*pointers[1], 5);
    EXPECT_EQ(*pointers.Back(), 7);

    SortedVectorSharedPointer<int> others;
    others.Values({std::make_shared<int>(7), std::make_shared<int>(6), nullptr, std::make_shared<int>(5)});
    EXPECT_TRUE(pointers == others);
    others.Erase(nullptr);
    EXPECT_TRUE(pointers != others);
}

TEST(SortedVectorWeakPointer, OrdersByTheObjectsAndRefusesExpiredOnes)
{
    const auto one = std::make_shared<int>(1);
    auto two = std::make_shared<int>(2);
    SortedVectorWeakPointer<int> pointers;
    pointers.Insert(two);
    pointers.Insert(one);
    EXPECT_EQ(pointers.Front().lock(), one);
    EXPECT_EQ(RuntimeErrorOf([&] { pointers.Insert(std::weak_ptr<int>()); }), expiredText);
    EXPECT_EQ(RuntimeErrorOf([&] { pointers.Insert(one); }), duplicateText);
    two.reset();
    EXPECT_EQ(RuntimeErrorOf([&] { static_cast<void>(pointers == pointers); }), expiredText);
    EXPECT_EQ(RuntimeErrorOf([&] { pointers.Sort(); }), expiredText);
    EXPECT_EQ(pointers.Size(), 2u);
    EXPECT_EQ(pointers.Front().lock(), one);
}

TEST(SortedVector, InsertCanBeOverridden)
{
    struct Counting : SortedVector<int>
    {
        void Insert(const int& item) override
        {
            ++calls;
            SortedVector<int>::Insert(item);
        }
        int calls = 0;
    } counting;
    SortedVectorBase<int, CompareLess<int>, CompareEqual<int>>& base = counting;
    base.Insert(1);
    EXPECT_EQ(counting.calls, 1);
    EXPECT_EQ(counting.Size(), 1u);
}

} // namespace
} // namespace Qiv::BusinessEntityModel::BaseTypes
