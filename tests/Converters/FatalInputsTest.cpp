#include "Conversions.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <csignal>
#include <memory>
#include <string>
#include <utility>

namespace Qiv::Tests
{
namespace
{

/// A reader and a writer that let no exception out.
template <typename Reader, typename Entity, typename Writer, typename Written = Entity>
constexpr bool areNoexcept =
    noexcept(std::declval<const Reader&>().To(std::declval<const JsonObject&>(), std::declval<Entity&>())) && noexcept(
        std::declval<const Writer&>().To(std::declval<const Written&>(), std::declval<Stringer&>()));
static_assert(areNoexcept<JsonToSpeedConverter, Speed, SpeedToJsonConverter>);
static_assert(areNoexcept<JsonToBoundaryConverter, std::unique_ptr<Boundary>, BoundaryToJsonConverter, Boundary>);
static_assert(areNoexcept<JsonToMediaInputConverter, MediaInput, MediaInputToJsonConverter>);
static_assert(areNoexcept<JsonToMediaOutputConverter, MediaOutput, MediaOutputToJsonConverter>);

template <typename Reader, typename Entity>
void ReadAny(const std::string& text)
{
    Entity entity;
    static_cast<void>(Reader().To(Parse(text), entity));
}

TEST(FatalInputsDeathTest, EndInTerminate)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const testing::KilledBySignal dies(SIGABRT);
    const std::string absoluteOrigin = R"({"_type":"BoundaryRelative","origin":"Absolute"})";
    const std::string badOrigin = "terminat.*: +Bad origin for BoundaryRelative\n";
    EXPECT_EXIT((ReadAny<JsonToBoundaryConverter, std::unique_ptr<Boundary>>(absoluteOrigin)), dies, badOrigin);
    for (const std::string key : {"inBoundary", "outBoundary"})
    {
        const auto document = R"({"_type":"MediaOutput",")" + key + "\":" + absoluteOrigin + "}";
        EXPECT_EXIT((ReadAny<JsonToMediaIOConverter, MediaOutput>(document)), dies, badOrigin);
    }
    for (const std::string value :
         {"", " ", "abc", "-", "+-5", "9223372036854775808", "-9223372036854775809", "\\u0000"})
    {
        const auto document = R"({"currentTimePointOnAir":{"_type":"TimePoint","value":")" + value + "\"}}";
        EXPECT_EXIT((ReadAny<JsonToMediaOutputConverter, MediaOutput>(document)), dies, "terminat.*: +stoll\n");
    }
}

// In a process of its own, where nobody has written a player channel before.
TEST(FatalInputsDeathTest, TheFirstPlayersTimePointWriterIsKept)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto isKept = []
    {
        std::weak_ptr<TimePointToJsonObjectConverter> kept[2];
        for (auto& writer : kept)
        {
            const auto injected = std::make_shared<TimePointToJsonObjectConverter>();
            writer = injected;
            Stringer stringer;
            static_cast<void>(MediaOutputToJsonConverter(injected).To(MediaOutput(), stringer));
        }
        _exit(kept[0].expired() || !kept[1].expired() ? 1 : 0);
    };
    EXPECT_EXIT(isKept(), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace Qiv::Tests
