#include "Conversions.h"

#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>

namespace Qiv::Tests
{
namespace
{

constexpr int terminated = 71;

/// Reads a document; when that ends in std::terminate, prints the exception and leaves with `terminated`.
template <typename Reader, typename Entity>
void ReadFatally(const std::string& text)
{
    std::set_terminate(
        []
        {
            try
            {
                if (const auto exception = std::current_exception())
                    std::rethrow_exception(exception);
                std::fputs("terminated without exception", stderr);
            }
            catch (const std::exception& error)
            {
                std::fprintf(stderr, "terminated by: %s.", error.what());
            }
            _exit(terminated);
        });
    Entity entity;
    static_cast<void>(Reader().To(Parse(text), entity));
    _exit(0);
}

class FatalInputsDeathTest : public testing::Test
{
protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

const std::string absoluteOrigin = R"({"_type":"BoundaryRelative","origin":"Absolute"})";

TEST_F(FatalInputsDeathTest, EndInTerminate)
{
    const testing::ExitedWithCode dies(terminated);
    const std::string badOrigin = "terminated by: Bad origin for BoundaryRelative\\.";
    EXPECT_EXIT((ReadFatally<JsonToBoundaryConverter, std::unique_ptr<Boundary>>(absoluteOrigin)), dies, badOrigin);
    for (const std::string key : {"inBoundary", "outBoundary"})
    {
        const auto document = R"({"_type":"MediaOutput",")" + key + "\":" + absoluteOrigin + "}";
        EXPECT_EXIT((ReadFatally<JsonToMediaIOConverter, MediaOutput>(document)), dies, badOrigin);
    }
    for (const std::string value :
         {"", " ", "abc", "-", "+-5", "9223372036854775808", "-9223372036854775809", "\\u0000"})
    {
        const auto document = R"({"currentTimePointOnAir":{"_type":"TimePoint","value":")" + value + "\"}}";
        EXPECT_EXIT((ReadFatally<JsonToMediaOutputConverter, MediaOutput>(document)), dies, "terminated by: stoll\\.");
    }
}

TEST_F(FatalInputsDeathTest, HaveHarmlessNeighbours)
{
    const testing::ExitedWithCode survives(0);
    EXPECT_EXIT((ReadFatally<JsonToMediaIOConverter, MediaOutput>(
                    R"({"_type":"MediaOutput","inBoundary":{"_type":"BoundaryRelative","origin":"?"},)"
                    R"("outBoundary":{"_type":"BoundaryRelative","origin":""},)"
                    R"("currentTimePointOnAir":{"_type":"TimePoint","value":"12abc"},)"
                    R"("todTimecodeOnAir":"00:00:00:00@99999999999999999999"})")),
                survives, "^$");
    for (const std::string value : {"null", "true", "1.5", "1e300", "9223372036854775808", "[]", "{}"})
    {
        const auto document = R"({"currentTimePointOnAir":{"_type":"TimePoint","value":)" + value + "}}";
        EXPECT_EXIT((ReadFatally<JsonToMediaOutputConverter, MediaOutput>(document)), survives, "^$");
    }
    const std::string unread =
        R"({"_type":"MediaOutput","inBoundary":{"_type":"BoundaryAbsolute","origin":"Absolute"},)"
        R"("currentTimePointOnAir":{"value":"abc"}})";
    EXPECT_EXIT((ReadFatally<JsonToMediaIOConverter, MediaOutput>(unread)), survives, "^$");
    EXPECT_EXIT((ReadFatally<JsonToMediaIOConverter, MediaInput>(R"({"_type":"MediaInput","inBoundary":)" +
                                                                 absoluteOrigin + "}")),
                survives, "^$");
}

// In a process of its own, where nobody has written a player channel before.
TEST_F(FatalInputsDeathTest, TheFirstPlayersTimePointWriterIsKept)
{
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
