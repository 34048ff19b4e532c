#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/HaveEqualContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include "ExampleDocuments.h"
#include "ThrownText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Qiv::Tests
{

using namespace DataModel::Tarvonel::MediaIOs;
using namespace DataModel::Tarvonel::Serialization::Json;
using namespace DataModel::Tarvonel::Serialization::Json::Documents;
using Common::Serialization::Json::JsonObject;

namespace
{

std::string Told(const TextResult& result)
{
    return result ? "read"
                  : std::to_string(result.Position().line) + ':' + std::to_string(result.Position().column) + ' ' +
                        result.Pointer() + ": " + result.ErrorMessage();
}

} // namespace

TEST(AnyDocument, ComesBackAsItIsWritten)
{
    for (const auto& text : ExampleDocuments())
    {
        SCOPED_TRACE(text);
        JsonObject json;
        ASSERT_TRUE(ParseText(text, json));
        const auto fromText = ReadAnyText(text);
        const auto fromJson = ReadAny(json);
        ASSERT_EQ(Told(fromText), "read");
        ASSERT_EQ(Told(fromJson), "read");
        EXPECT_EQ(ToText(fromText.Entity()), text);
        EXPECT_EQ(ToText(fromJson.Entity()), text);
        EXPECT_EQ(KindOf(fromText.Entity()), KindOf(json));
        EXPECT_EQ(IdOf(fromText.Entity()).Value(), IdOf(json));
        EXPECT_EQ(IdOf(json), json.get("id", "").asString()) << "no example has an identifier that is not its own";
        JsonObject pretty;
        ASSERT_TRUE(ParseText(ToText(fromText.Entity(), Layout::Pretty), pretty));
        EXPECT_EQ(pretty, json);
        if (const auto* const channel = ChannelOf(fromText.Entity()))
        {
            EXPECT_EQ(ToText(*channel), text);
        }
    }
}

TEST(AnyDocument, IsRefusedWithTheReadersTextAndItsPlace)
{
    const std::pair<const char*, const char*> cases[] = {
        {"{\"_type\":", "1:10 : "},
        {"{}", "1:1 : MediaIO is empty"},
        {"[]", "1:1 : MediaIO is empty"},
        {R"({"id":"x"})", "1:1 : Invalid JSON type (undefined)"},
        {R"({"_type":"TimePoint","value":"1"})",
         "1:10 /_type: Invalid JSON type ('TimePoint') : 'MediaInput' or 'MediaOutput' expected"},
        {"{\"_type\":\"MediaOutput\",\n \"speedOnAir\":{}}", "2:15 /speedOnAir: Speed is empty"},
        {R"({"_type":"Node"})", "1:1 : Node has no identifier (required)"},
        {R"({"_type":"BoundaryRelative","origin":"Absolute"})",
         "1:38 /origin: \"Absolute\" is the origin of a relative boundary, which ends the process"},
        {R"({"_type":"MediaOutput","currentTimePointOnAir":{"_type":"TimePoint","value":"now"}})",
         "1:77 /currentTimePointOnAir/value: \"now\" does not begin with a number, which ends the process"},
        // A player's members in a document of another kind: nothing reads them.
        {R"({"_type":"MediaInput","currentTimePointOnAir":{"_type":"TimePoint","value":"now"}})", "read"},
    };
    for (const auto& [text, told] : cases)
    {
        const auto result = ReadAnyText(text);
        EXPECT_EQ(Told(result).substr(0, std::string(told).size()), told) << text;
        JsonObject json;
        if (!ParseText(text, json))
            continue;
        const auto fromJson = ReadAny(json);
        EXPECT_EQ(fromJson.ErrorMessage(), result.ErrorMessage()) << text;
        EXPECT_EQ(fromJson.Pointer(), result.Pointer()) << text;
    }
    for (const auto* const notAnObject : {"null", "1", "\"{}\""}) // which ParseText lets nobody have
        EXPECT_EQ(ReadAny(JsonObject(notAnObject)).ErrorMessage(), "MediaIO is empty");
    EXPECT_THROW(ReadAnyText("{}").Entity(), std::bad_optional_access);
}

TEST(ReadOptions, RefuseWhatTheReaderWouldPassOver)
{
    constexpr auto all = FindingKinds::All();
    constexpr FindingKinds two{FindingKind::UnknownMember, FindingKind::WrongType};
    const struct
    {
        const char* text;
        FindingKinds refuse;
        const char* told;
        std::size_t findings;
    } cases[] = {
        {R"({"_type":"Node","id":"n1"})", all, "read", 0},
        {R"({"_type":"Node","id":"n1","x":1})", {}, "read", 1},
        {R"({"_type":"Node","id":"n1","x":1})", all, "1:31 /x: \"x\" is no member of Node; it is skipped", 1},
        {R"({"_type":"Node","id":"n1","x":1})", FindingKind::WrongType, "read", 1},
        {"{\"_type\":\"Node\",\"id\":\"n1\",\"x\":1,\n\"chassis\":6}", two,
         "2:11 /chassis: is an integer of 32 bits, where a string belongs; it is skipped", 2},
        // Failures are told in the reader's order, and by its text.
        {R"({"_type":"MediaInput","lastTimePoint":5,"x":1})", all, "1:39 /lastTimePoint: TimePoint is empty", 2},
        {R"({"_type":"MediaInput","recordingStatus":"?","lastTimePoint":5})", all,
         "1:41 /recordingStatus: \"?\" is none of Idle, Pause, Recording; it is read as Idle", 2},
        {R"({"_type":"BoundaryRelative","origin":"Absolute"})", FindingKind::EndsProcess,
         "1:38 /origin: \"Absolute\" is the origin of a relative boundary, which ends the process", 1},
        {R"({"_type":"MediaInput","id":"n1","name":7})", {}, "read", 1},
        // Another identifier than "n1", which is expected.
        {R"({"_type":"Node","id":"n2","x":1})", {}, R"(1:22 /id: "n2" is another identifier than "n1")", 1},
        {R"({"_type":"MediaInput","id":"n1\u0000"})", {}, R"(1:28 /id: "n1\u0000" is another identifier than "n1")", 1},
        {R"({"_type":"Node","id":""})", {}, "read", 0},
        {R"({"_type":"MediaOutput"})", {}, "read", 0},
        {R"({"_type":"MediaOutput","id":2})", {}, "read", 1},
        {R"({"_type":"Speed","id":"n2"})", {}, "read", 1},
        {"{", all, "1:2 : ", 0},
    };
    std::vector<Finding> findings;
    for (const auto& each : cases)
    {
        SCOPED_TRACE(each.text);
        ReadOptions options;
        options.refuse = each.refuse;
        options.expectedId = "n1";
        const auto unasked = ReadAnyText(each.text, options);
        EXPECT_EQ(Told(unasked).substr(0, std::string(each.told).size()), each.told);
        options.findings = &findings;
        EXPECT_EQ(Told(ReadAnyText(each.text, options)), Told(unasked));
        EXPECT_EQ(findings.size(), each.findings);
        options.maximumFindings = 1;
        EXPECT_EQ(Told(ReadAnyText(each.text, options)), Told(unasked));
        EXPECT_EQ(findings.size(), std::min<std::size_t>(each.findings, 1));
        JsonObject json;
        if (!ParseText(each.text, json))
            continue;
        EXPECT_EQ(ReadAny(json, options).ErrorMessage(), unasked.ErrorMessage());
        if (KindOf(json) != DocumentKind::MediaInput)
            continue;
        MediaInput recorder;
        recorder.Name("kept");
        EXPECT_EQ(Told(MergeText(each.text, recorder, options)), Told(unasked));
        EXPECT_EQ(Told(ReadSnapshotText(each.text, recorder, options)), Told(unasked));
        EXPECT_EQ(recorder.Name(), unasked ? "" : "kept");
    }
    ReadOptions limited;
    limited.limits.bytes = 10;
    EXPECT_EQ(Told(ReadAnyText(R"({"_type":"Node","id":"n1"})", limited)),
              "1:11 : the text has more than 10 bytes, the limit set for it");
    std::string full = R"({"_type":"Node","id":"n1","chassis":5)";
    for (std::size_t i = 0; i < mostFindings; ++i)
        full += ",\"x" + std::to_string(i) + "\":1";
    ReadOptions wary;
    wary.refuse = FindingKind::Ignored;
    EXPECT_EQ(Told(ReadAnyText(full + '}', wary)), "1:1 : there are 100000 findings or more");
    ReadOptions nothingExpected;
    EXPECT_EQ(Told(ReadAnyText(R"({"_type":"Node","id":"n2"})", nothingExpected)), "read");
}

TEST(AnyDocument, HasAnIdentifierOnlyWhereAReaderTakesOne)
{
    const std::pair<const char*, const char*> cases[] = {
        {R"({"_type":"Node","id":"n"})", "n"},
        {R"({"_type":"Node","id":7})", ""},
        {R"({"_type":"Node"})", ""},
        {R"({"_type":"Speed","id":"n"})", ""},
        {R"({"id":"n"})", ""},
        {"[]", ""},
    };
    for (const auto& [text, id] : cases)
    {
        JsonObject json;
        ASSERT_TRUE(ParseText(text, json));
        EXPECT_EQ(IdOf(json), id) << text;
    }
}

namespace
{

// Whether each of the functions for a `Json::Value` takes a `T`.
constexpr auto kindOf = [](auto&& json) -> decltype(KindOf(json)) { return {}; };
constexpr auto idOf = [](auto&& json) -> decltype(IdOf(json)) { return {}; };
constexpr auto inspect = [](auto&& json) -> decltype(InspectDocument(json)) { return {}; };
constexpr auto inspectKind = [](auto&& json) -> decltype(InspectDocument(json, DocumentKind::Node)) { return {}; };
constexpr auto readAny = [](auto&& json) -> decltype(ReadAny(json)) { return ReadAny(json); };
constexpr auto mergeWhole = [](auto&& json) -> decltype(MergeWhole(json, std::declval<MediaInput&>())) { return {}; };
constexpr auto readSnapshot = [](auto&& json) -> decltype(ReadSnapshot(json, std::declval<MediaInput&>()))
{ return {}; };

template <typename T, typename... Functions>
constexpr int CountOfTaking(Functions...)
{
    return (0 + ... + (std::is_invocable_v<Functions, T> ? 1 : 0));
}
template <typename T>
constexpr int taking = CountOfTaking<T>(kindOf, idOf, inspect, inspectKind, readAny, mergeWhole, readSnapshot);

static_assert(taking<const JsonObject&> == 7);
static_assert(taking<const char*> + taking<const char (&)[3]> + taking<std::string&> + taking<std::string_view> == 0);

} // namespace

TEST(ToText, ThrowsTheTextOfAWriterThatFails)
{
    const BoundaryRelative boundary(BoundaryOrigin::Absolute, 3);
    EXPECT_EQ(ThrownText<std::invalid_argument>([&] { static_cast<void>(ToText(boundary)); }), "Null BoundaryAbsolute");
    EXPECT_EQ(ToText(Speed(1, 2), Layout::Pretty),
              "{\n  \"_type\": \"Speed\",\n  \"numerator\": 1,\n  \"denominator\": 2\n}");
}

// The channels here are equal by ==.
TEST(HaveEqualContent, SeesWhatEqualityPassesOver)
{
    const auto reference = [](const char* id, const char* name)
    {
        auto asset = std::make_shared<DataModel::MediaAssets::MediaAsset>();
        asset->Id(BusinessEntityModel::BaseTypes::Identifier(id));
        asset->Name(name);
        MediaOutput channel;
        channel.MediaAssetOnAir(asset);
        return channel;
    };
    const auto goal = reference("a1", "Goal");
    auto byIdOnly = goal;
    byIdOnly.MediaAssetOnAir(BusinessEntityModel::BaseTypes::Identifier("a1"));
    auto half = goal, twoQuarters = goal;
    half.SpeedOnAir(Speed(1, 2));
    twoQuarters.SpeedOnAir(Speed(2, 4));
    const std::pair<MediaOutput, MediaOutput> cases[] = {
        {goal, reference("a1", "Gaol")}, {goal, byIdOnly}, {half, twoQuarters}};
    for (const auto& [left, right] : cases)
    {
        EXPECT_TRUE(left == right);
        EXPECT_TRUE(HaveEqualContent(left, left));
        EXPECT_FALSE(HaveEqualContent(left, right));
        EXPECT_FALSE(HaveEqualContent(static_cast<const MediaIO&>(left), AnyEntity(right)));
    }
    EXPECT_FALSE(HaveEqualContent(MediaInput(), MediaOutput()));
    EXPECT_FALSE(HaveEqualContent(BoundaryRelative(BoundaryOrigin::Absolute, 3), BoundaryAbsolute()));
}

} // namespace Qiv::Tests
