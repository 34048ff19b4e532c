#include "Conversions.h"

#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <gtest/gtest.h>

#include <unistd.h>

#include <csignal>
#include <memory>
#include <utility>

namespace Qiv::Tests
{

using namespace DataModel::Tarvonel::Serialization::Json;

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

/// The reader ends the process; what looks first says so, and the entity stays as it is.
const auto checkFatal = [](const Case& each, const auto& conversion)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const auto& document : each.Documents())
    {
        SCOPED_TRACE(conversion.name + " reads " + document);
        using Entity = typename std::decay_t<decltype(conversion)>::Entity;
        Entity entity{};
        EXPECT_EXIT(static_cast<void>(conversion.reader.To(Parse(document), entity)), testing::KilledBySignal(SIGABRT),
                    "terminat.*: +" + each.Text("message") + "\n");
        const auto findings = InspectDocument(Parse(document));
        ASSERT_NE(FirstFatal(findings), nullptr);
        EXPECT_EQ(FirstFatal(findings)->readerMessage, each.Text("message"));
        if constexpr (std::is_same_v<Entity, MediaOutput> || std::is_same_v<Entity, std::unique_ptr<Boundary>>)
        {
            const auto before = Written(entity);
            EXPECT_EQ(MergeText(document, entity).ErrorMessage(), FirstFatal(findings)->sentence);
            EXPECT_EQ(Written(entity), before);
        }
    }
};
const bool areRegistered = RegisterCases(
    "Fatal.json", [](const Case& each)
    { ForEachConversion(each, "readers", [&](const auto& conversion) { checkFatal(each, conversion); }); });

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
