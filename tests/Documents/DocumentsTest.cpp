#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/MetadataValues.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/HaveEqualContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <CaseFiles.h>
#include <ThrownText.h>

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

// Reads a text into what holds something else.
template <typename Channel>
void CheckChannel(const std::string& text, const ReadOptions& options, const std::string& told)
{
    Channel channel;
    channel.Name("kept");
    EXPECT_EQ(Told(MergeText(text, channel, options)), told);
    EXPECT_EQ(Told(ReadSnapshotText(text, channel, options)), told);
    EXPECT_EQ(channel.Name() == "kept", told != "read");
}

void CheckAnyKind(const Case& each)
{
    ReadOptions options;
    options.expectedId = each.Text("expectedId");
    for (const auto& name : each.List("refuse"))
        for (const auto kind : {FindingKind::UnknownMember, FindingKind::Ignored, FindingKind::WrongType,
                                FindingKind::InvalidValue, FindingKind::EndsProcess})
            if (name == "\"all\"" || name == '"' + std::string(ToString(kind)) + '"')
                options.refuse = options.refuse | (name == "\"all\"" ? FindingKinds::All() : kind);
    const auto found = each.Has("found") ? each["found"].asUInt() : 0;
    for (const auto& text : each.Documents())
    {
        const auto result = ReadAnyText(text, options);
        const auto told = Told(result);
        EXPECT_EQ(told, each.Has("message") ? each["line"].asString() + ':' + each["column"].asString() + ' ' +
                                                  each.Text("pointer") + ": " + each.Text("message")
                                            : "read");
        std::vector<Finding> findings(7);
        auto asking = options;
        asking.findings = &findings;
        EXPECT_EQ(Told(ReadAnyText(text, asking)), told);
        EXPECT_EQ(findings.size(), found);
        asking.maximumFindings = 1;
        EXPECT_EQ(Told(ReadAnyText(text, asking)), told);
        EXPECT_EQ(findings.size(), std::min(found, 1U));
        JsonObject json;
        if (!ParseText(text, json))
            continue;
        const auto fromJson = ReadAny(json, options);
        EXPECT_EQ(fromJson.ErrorMessage(), result.ErrorMessage());
        EXPECT_EQ(fromJson.Pointer(), result.Pointer());
        if (KindOf(json) == DocumentKind::MediaInput)
            CheckChannel<MediaInput>(text, options, told);
        if (KindOf(json) == DocumentKind::MediaOutput)
            CheckChannel<MediaOutput>(text, options, told);
        if (found != 0 || !result)
            continue;
        EXPECT_EQ(ToText(fromJson.Entity()), ToText(result.Entity()));
        EXPECT_EQ(Parse(ToText(result.Entity(), Layout::Pretty)), Parse(ToText(result.Entity())));
        EXPECT_EQ(KindOf(result.Entity()), KindOf(json));
        EXPECT_EQ(IdOf(result.Entity()).Value(), IdOf(json));
        EXPECT_EQ(IdOf(json), json.get("id", "").asString());
    }
}

const bool areRegistered = RegisterCases("texts/AnyKind.json", CheckAnyKind);

} // namespace

TEST(ReadAny, RefusesValuesThatNoTextIs)
{
    for (const auto* const text : {"null", "1", "\"{}\""})
        EXPECT_EQ(ReadAny(Parse(text)).ErrorMessage(), "MediaIO is empty") << text;
    EXPECT_THROW(ReadAnyText("{}").Entity(), std::bad_optional_access);
    for (const auto* const text :
         {R"({"id":"n"})", R"({"_type":"Node","id":7})", R"({"_type":"Speed","id":"n"})", "[]"})
    {
        const auto json = Parse(text);
        EXPECT_EQ(IdOf(json), "") << text;
    }
}

TEST(ReadOptions, BoundTextsAndFindings)
{
    ReadOptions options;
    options.limits.bytes = 10;
    EXPECT_EQ(Told(ReadAnyText(R"({"_type":"Node","id":"n1"})", options)),
              "1:11 : the text has more than 10 bytes, the limit set for it");
    std::string full = R"({"_type":"Node","id":"n1")";
    for (std::size_t i = 0; i < mostFindings; ++i)
        full += ",\"x" + std::to_string(i) + "\":1";
    options = ReadOptions();
    options.refuse = FindingKind::Ignored; // of which there is none
    EXPECT_EQ(Told(ReadAnyText(full + '}', options)), "1:1 : there are 100000 findings or more");
}

namespace
{

// Whether each of the functions for a `Json::Value` takes a `T`.
constexpr auto kindOf = [](auto&& json) -> decltype(KindOf(json)) { return {}; };
constexpr auto idOf = [](auto&& json) -> decltype(IdOf(json)) { return {}; };
constexpr auto inspect = [](auto&& json) -> decltype(InspectDocument(json)) { return {}; };
constexpr auto inspectKind = [](auto&& json) -> decltype(InspectDocument(json, DocumentKind::Node)) { return {}; };
constexpr auto inspectMost = [](auto&& json) -> decltype(InspectDocument(json, 1)) { return {}; };
constexpr auto inspectKindMost = [](auto&& json) -> decltype(InspectDocument(json, DocumentKind::Node, 1))
{ return {}; };
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
constexpr int taking = CountOfTaking<T>(kindOf, idOf, inspect, inspectKind, inspectMost, inspectKindMost, readAny,
                                        mergeWhole, readSnapshot);

static_assert(taking<const JsonObject&> == 9);
static_assert(taking<const char*> + taking<const char (&)[3]> + taking<std::string&> + taking<std::string_view> == 0);

} // namespace

TEST(ToText, ThrowsTheTextOfAWriterThatFails)
{
    const BoundaryRelative boundary(BoundaryOrigin::Absolute, 3);
    EXPECT_EQ(ThrownText<std::invalid_argument>([&] { static_cast<void>(ToText(boundary)); }), "Null BoundaryAbsolute");
    EXPECT_EQ(ToText(Speed(1, 2), Layout::Pretty),
              "{\n  \"_type\": \"Speed\",\n  \"numerator\": 1,\n  \"denominator\": 2\n}");
}

TEST(ToText, TakesTheEntitiesInsideOfOthers)
{
    MediaInput channel;
    Channels::SetMetadataValue(channel.Metadata(), "a.b", "c");
    DataModel::MediaAssets::MediaAsset asset;
    asset.Id("clip");
    BusinessEntityModel::Edits::Sequence sequence;
    sequence.Name("Highlights");
    EXPECT_EQ(ToText(channel.Metadata()), R"({"a.b":"c"})");
    EXPECT_EQ(ToText(asset), R"({"_type":"MediaAsset","id":"clip"})");
    EXPECT_EQ(ToText(sequence), R"({"_type":"Sequence","id":"","name":"Highlights"})");
}

// Numbers and truth values are taken as jsoncpp's text of them, also where no tree is made.
TEST(MergeText, TakesTheIdentifierOfAReferenceAsATreeHasIt)
{
    for (const std::string id :
         {"\"x\"", "-3", "18446744073709551615", "1.50", "1e3", "-0.0", "true", "false", "null", "{}", "[]"})
    {
        const auto text = R"({"_type":"MediaInput","mediaAssetOnAir":{"id":)" + id + "}}";
        JsonObject json;
        ASSERT_TRUE(ParseText(text, json));
        MediaInput ofText, ofTree;
        EXPECT_EQ(MergeText(text, ofText).ErrorMessage(), MergeWhole(json, ofTree).ErrorMessage()) << id;
        EXPECT_EQ(ofText.MediaAssetOnAir().Id().Value(), ofTree.MediaAssetOnAir().Id().Value()) << id;
    }
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
