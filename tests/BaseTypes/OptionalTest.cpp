#include <Qiv/BusinessEntityModel/BaseTypes/Optional.h>

#include "ThrownText.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

namespace Qiv::BusinessEntityModel::BaseTypes
{
namespace
{

/// Counts its living instances, and throws on copying when told to. The text is long enough to live on the heap, so
/// that an address sanitizer sees a lost or doubled destruction.
struct Tracked
{
    static inline int alive = 0;
    static inline bool throws = false;

    explicit Tracked(int number) : text(std::to_string(number) + " is held in a text of its own on the heap")
    {
        ++alive;
    }
    Tracked(const Tracked& other) : text(other.text)
    {
        if (throws)
            throw std::logic_error("copy");
        ++alive;
    }
    Tracked(Tracked&& other) noexcept : text(std::move(other.text)) { ++alive; }
    Tracked& operator=(const Tracked&) = default;
    Tracked& operator=(Tracked&&) noexcept = default;
    ~Tracked() { --alive; }
    bool operator==(const Tracked& other) const { return text == other.text; }

    std::string text;
};

static_assert(std::is_nothrow_move_constructible_v<Optional<Tracked>>);
static_assert(std::is_nothrow_move_assignable_v<Optional<Tracked>>);
static_assert(!std::is_convertible_v<Optional<int>, bool>, "an optional number must not be taken for its presence");

TEST(Optional, BehavesAsTheStandardOneUnderRandomOperations)
{
    std::mt19937 random(20160321);
    {
        Optional<Tracked> actual[2];
        std::optional<Tracked> expected[2];
        for (int step = 0; step < 20000; ++step)
        {
            const auto target = random() % 2;
            const auto source = random() % 2;
            const Tracked value(step);
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
                ASSERT_TRUE(!expected[i] || actual[i].Value() == *expected[i]) << step;
            }
            ASSERT_EQ(actual[0] == actual[1], expected[0] == expected[1]) << step;
            ASSERT_EQ(actual[0] != actual[1], !(expected[0] == expected[1])) << step;
        }
    }
    EXPECT_EQ(Tracked::alive, 0);
}

TEST(Optional, RefusesToGiveAnAbsentValue)
{
    Optional<std::string> optional(std::string("text"));
    optional.Undefine();
    const char* const text = "Can't retrieve the value of a Null Optional value";
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { optional.Value(); }), text);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { *std::as_const(optional); }), text);
    EXPECT_EQ(ThrownText<std::runtime_error>([&] { optional->clear(); }), text);
}

TEST(Optional, IsEmptyAfterAnExceptionFromItsValue)
{
    {
        const Tracked value(1);
        Optional<Tracked> optional;
        Tracked::throws = true;
        EXPECT_THROW(optional = value, std::logic_error);
        EXPECT_THROW(Optional<Tracked>{value}, std::logic_error);
        Tracked::throws = false;
        EXPECT_FALSE(optional.HasValue());
    }
    EXPECT_EQ(Tracked::alive, 0);
}

} // namespace
} // namespace Qiv::BusinessEntityModel::BaseTypes
