#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>

#include <Converters/Conversions.h>
#include <Converters/ModelGenerator.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <map>
#include <string>
#include <vector>

namespace Qiv::Tests
{

using namespace DataModel::Tarvonel::Serialization::Json;

namespace
{

// What an entity holds, also what its writer leaves out.
template <typename Writer, typename Entity>
std::string Dump(const Entity& entity)
{
    auto text = Written<Writer>(entity);
    if constexpr (std::is_same_v<Entity, SequenceOutput>)
        if (const auto sequence = entity.SequenceOnAir().Pointer())
            text += " sequence " + sequence->Id().Value() + '/' + sequence->Name();
    if constexpr (std::is_base_of_v<MediaIO, Entity>)
    {
        if (const auto asset = entity.MediaAssetOnAir().Pointer())
            text += Written<DataModel::MediaAssets::Serialization::Json::MediaAssetToJsonConverter>(*asset);
        if (const auto profile = entity.Metadata().Find("qiv.peloperator"))
            text += " index " + std::to_string(dynamic_cast<const PelOperatorMetadataProfile&>(*profile).Index());
    }
    if constexpr (std::is_same_v<Entity, MediaOutput>)
        text += Written<SpeedToJsonConverter>(entity.SpeedOnAir()) +
                (entity.Sequence() ? Dump<SequenceOutputToJsonConverter>(*entity.Sequence()) : "");
    return text;
}

// All members and elements of a document: RFC 6901 pointer to the keys that it consists of.
using Keys = std::vector<std::string>;
void List(const JsonObject& json, const std::string& pointer, const Keys& keys, std::map<std::string, Keys>& places)
{
    for (auto value = json.begin(); value != json.end(); ++value)
    {
        auto below = keys;
        below.push_back(json.isArray() ? std::to_string(value.index()) : value.name());
        auto escaped = pointer + '/';
        for (const char character : below.back())
            escaped += character == '~' ? "~0" : character == '/' ? "~1" : std::string(1, character);
        places[escaped] = below;
        List(*value, escaped, below, places);
    }
}

std::map<std::string, Keys> Places(const JsonObject& document)
{
    std::map<std::string, Keys> places;
    List(document, "", {}, places);
    return places;
}

JsonObject& Parent(JsonObject& document, const Keys& keys)
{
    auto* parent = &document;
    for (std::size_t i = 0; i + 1 < keys.size(); ++i)
        parent = parent->isArray() ? &(*parent)[std::stoi(keys[i])] : &(*parent)[keys[i]];
    return *parent;
}

// The document without a member or an element; null when that leaves an empty object, which readers refuse.
JsonObject Without(JsonObject document, const Keys& keys)
{
    auto& parent = Parent(document, keys);
    if (parent.isArray())
        parent.removeIndex(static_cast<::Json::ArrayIndex>(std::stoi(keys.back())), nullptr);
    else
        parent.removeMember(keys.back());
    return parent.empty() && parent.isObject() ? JsonObject() : document;
}

void Mutate(JsonObject& document, ModelGenerator& generator)
{
    static const auto values =
        Parse(R"([null, true, false, 0, 1, -5, 15, 20, 1.5, 3.0, 5000000000, 1e20, "", "x", "Tod",
        "12abc", "+7", " 8", "99999999999999999999", "-9223372036854775809", "Absolute", "Loop", "Node", "TimePoint",
        "10:00:00:00@25", "10:00:00;00@25", "-1-0-1-0-1T10:00:00:00@25", [], ["a", 1, null], {}, {"x": 1}, {"id": "r"},
        {"id": 5}, {"id": {}}, {"_type": 5, "id": "r"}, {"_type": null, "id": "r"}, {"_type": "Duration", "value": "7"},
        {"_type": "BoundaryRelative", "origin": "Absolute"}, {"_type": "TimePoint", "value": "seven"}, "MediaOutput",
        {"_type": "TimePoint", "value": 7}, {"_type": "Speed"}, {"a.b": 1, "a": "1", "qiv.peloperatorX.y": "z"}])");
    static const auto names = Parse(R"(["other", "_type", "id", "metadata", "locationOnAir", "sequence", "inBoundary",
        "outBoundary", "mediaAsset", "value", "origin", "offset", "speedOnAir", "remainingTime", "a.b", "~/",
        "qiv.peloperator.index", "timepoint", "lastTimePoint", "currentTimePointOnAir"])");
    static const auto fatal = Parse(R"({"inBoundary": {"_type": "BoundaryRelative", "origin": "Absolute"},
        "currentTimePointOnAir": {"_type": "TimePoint", "value": "e"}, "outBoundary": {"_type": "BoundaryRelative", "origin": "Absolute"}})");
    const auto places = Places(document);
    if (places.empty())
        return;
    if (generator.Chance(20))
    {
        const auto name = fatal.getMemberNames()[generator.Below(fatal.size())];
        document[name] = fatal[name];
        return;
    }
    const auto& keys = std::next(places.begin(), generator.Below(static_cast<std::uint32_t>(places.size())))->second;
    auto& parent = Parent(document, keys);
    if (const auto action = generator.Below(4); action == 0 || parent.isArray())
        document = Without(document, keys);
    else
        parent[action == 1 ? names[generator.Below(names.size())].asString() : keys.back()] =
            values[generator.Below(values.size())];
}

bool IsAtOrBelow(const std::string& pointer, const std::string& above)
{
    return (pointer + '/').compare(0, above.size() + 1, above + '/') == 0;
}

// Whether a new object has the value anyway.
bool IsDefault(const JsonObject& value)
{
    const auto isDefault = [&](const std::string& name) { return name == "_type" || IsDefault(value[name]); };
    if (value.isObject())
    {
        const auto names = value.getMemberNames();
        return std::all_of(names.begin(), names.end(), isDefault);
    }
    return value.empty() || value == 0 || value == -1 || value == "" || value == false || value == "0" ||
           value == "RelativeToCorrespondingMediaBoundary" || value == "-9223372036854775807";
}

// Whether a member that is read may be left out all the same.
bool IsRedundant(JsonObject& document, const Keys& keys)
{
    const auto& parent = Parent(document, keys);
    const auto& name = keys.back();
    const bool isInReference = keys.size() > 1 && keys[keys.size() - 2].find("lockOnAir") == std::string::npos;
    return parent.isArray() || name == "_type" || IsDefault(parent[name]) ||
           (name == "id" && isInReference && (parent.isMember("mediaAsset") || parent.isMember("sequence"))) ||
           (keys[0].find("Capacity") != std::string::npos && document.isMember("totalCapacity") &&
            document.isMember("remainingCapacity"));
}

struct Counts
{
    int clean = 0, successes = 0, failures = 0, skipped = 0, used = 0, fatal = 0;
};

// Generated documents of one kind, mutated up to three times: what the inspection says against what the reader does.
template <typename Reader, typename Writer, typename Entity>
void CheckKind(DocumentKind kind, const std::string& full, Entity (ModelGenerator::*make)(), Counts& counts)
{
    constexpr bool isChannel = std::is_base_of_v<MediaIO, Entity>;
    // The failure's text, and what an empty and a full entity then hold.
    const auto read = [&full](const JsonObject& json)
    {
        Entity empty{};
        auto target = FromText<Reader, Entity>(full);
        const auto result = Reader().To(json, empty);
        static_cast<void>(Reader().To(json, target));
        return std::pair(std::string(result.ErrorMessage()), Dump<Writer>(empty) + Dump<Writer>(target));
    };
    ModelGenerator generator(2);
    for (int i = 0; i < 500; ++i)
    {
        auto document = Parse(Written<Writer>((generator.*make)()));
        const auto mutations = generator.Below(4);
        for (auto count = mutations; count > 0; --count)
            Mutate(document, generator);
        SCOPED_TRACE(document.toStyledString());

        const auto findings = InspectDocument(document, kind);
        const auto* const failure = FirstFailure(findings);
        if (mutations == 0)
        {
            ++counts.clean;
            ASSERT_TRUE(findings.empty()) << findings[0].pointer << ": " << findings[0].sentence;
            ASSERT_TRUE(InspectDocument(document).empty());
        }
        if (FirstFatal(findings) != nullptr)
        {
            if (failure == nullptr && ++counts.fatal <= 20)
            {
                ASSERT_EXIT(read(document), testing::KilledBySignal(SIGABRT), "");
            }
            continue;
        }
        const auto outcome = read(document);
        ASSERT_EQ(outcome.first, failure != nullptr ? failure->readerMessage : "");

        const auto target = (generator.*make)();
        const auto copy = [&target]
        {
            if constexpr (isChannel)
                return target; // shares the profiles, which the reading may not change
            else
                return IndependentCopy(target);
        };
        auto merged = IndependentCopy(target), snapshot = Entity{}, mergedWhole = copy(), snapshotWhole = copy();
        if constexpr (isChannel)
            snapshot.Id(target.Id());
        const auto before = Dump<Writer>(target);
        static_cast<void>(Reader().To(document, merged));
        static_cast<void>(Reader().To(document, snapshot));
        ASSERT_EQ(MergeWhole(document, mergedWhole).ErrorMessage(), outcome.first);
        ASSERT_EQ(ReadSnapshot(document, snapshotWhole).ErrorMessage(), outcome.first);
        ASSERT_EQ(Dump<Writer>(mergedWhole), failure != nullptr ? before : Dump<Writer>(merged));
        ASSERT_EQ(Dump<Writer>(snapshotWhole), failure != nullptr ? before : Dump<Writer>(snapshot));
        ASSERT_EQ(Dump<Writer>(target), before);

        ++(failure != nullptr ? counts.failures : counts.successes);
        if (failure != nullptr)
            continue;
        auto places = Places(document);
        for (const auto& finding : findings)
        {
            const auto without = Without(document, places.at(finding.pointer));
            if (without.isNull() || finding.sentence.find(" read") != std::string::npos)
                continue;
            ++counts.skipped;
            ASSERT_EQ(read(without), outcome) << finding.pointer << ": " << finding.sentence;
        }
        for (const auto& [pointer, keys] : places)
        {
            const auto parent = pointer.substr(0, pointer.rfind('/'));
            const auto concerns = [&pointer = pointer, &parent](const Finding& finding)
            {
                return IsAtOrBelow(finding.pointer, pointer) || IsAtOrBelow(pointer, finding.pointer) ||
                       (!parent.empty() && IsAtOrBelow(finding.pointer, parent));
            };
            const auto without = Without(document, keys);
            if (without.isNull() || IsRedundant(document, keys) ||
                std::any_of(findings.begin(), findings.end(), concerns) ||
                FirstFatal(InspectDocument(without, kind)) != nullptr)
                continue;
            ++counts.used;
            ASSERT_NE(read(without), outcome) << pointer << " changes nothing";
        }
    }
}

} // namespace

TEST(InspectDocument, TellsWhatReadersDoWithAnyDocument)
{
    Counts counts;
    CheckKind<JsonToMediaIOConverter, MediaIOToJsonConverter>(DocumentKind::MediaInput, fullInput,
                                                              &ModelGenerator::MakeMediaInput, counts);
    CheckKind<JsonToMediaIOConverter, MediaIOToJsonConverter>(DocumentKind::MediaOutput, fullOutput,
                                                              &ModelGenerator::MakeMediaOutput, counts);
    CheckKind<JsonToSequenceOutputConverter, SequenceOutputToJsonConverter>(
        DocumentKind::SequenceOutput, fullSequenceOutput, &ModelGenerator::MakeSequenceOutput, counts);
    CheckKind<JsonToSpeedConverter, SpeedToJsonConverter>(DocumentKind::Speed, R"({"numerator":-7,"denominator":3})",
                                                          &ModelGenerator::MakeSpeed, counts);
    CheckKind<JsonToNodeConverter, NodeToJsonConverter>(DocumentKind::Node, fullNode, &ModelGenerator::MakeNode,
                                                        counts);
    CheckKind<JsonToBoundaryConverter, BoundaryToJsonConverter>(
        DocumentKind::Boundary, R"({"_type":"BoundaryRelative","offset":3})", &ModelGenerator::MakeBoundary, counts);
    // Otherwise the mutations are too tame or too wild to show anything.
    const auto [clean, successes, failures, skipped, used, fatal] = counts;
    EXPECT_TRUE(clean > 500 && successes > 1500 && failures > 500 && skipped > 1000 && used > 5000 && fatal > 10)
        << clean << ' ' << successes << ' ' << failures << ' ' << skipped << ' ' << used << ' ' << fatal;
}

// Each document with its findings: kind, pointer, and the reader's text after an arrow.
TEST(InspectDocument, NamesKindPlaceAndReadersText)
{
    const std::pair<const char*, const char*> cases[] = {
        {"null", "failure : -> MediaIO is empty"},
        {"{}", "failure : -> MediaIO is empty"},
        {R"({"id": "n"})", "failure : -> Invalid JSON type (undefined)"},
        {R"({"_type": 5})", "failure /_type: -> Invalid JSON type (undefined)"},
        {R"({"_type": "Nod"})",
         "failure /_type: -> Invalid JSON type ('Nod') : 'MediaInput' or 'MediaOutput' expected"},
        {R"({"_type": "Node"})", "failure : -> Node has no identifier (required)"},
        {R"({"_type": "Node", "id": 1, "a/b~c": 2})",
         "failure /id: -> Node has no identifier (required); unknown-member /a~1b~0c:"},
        {R"({"_type": "Node", "id": "", "serialNumber": 2147483648, "gbeIpAddresses": ["", null, 4]})",
         "wrong-type /serialNumber:; wrong-type /gbeIpAddresses/1:; wrong-type /gbeIpAddresses/2:"},
        {R"({"_type": "Speed", "numerator": 3.0, "denominator": -1})", ""},
        {R"({"_type": "BoundaryAbsolute", "timepoint": 5})", "failure /timepoint: -> TimePoint is empty"},
        {R"({"_type": "BoundaryAbsolute", "timepoint": {"_type": "TimePoint", "value": " 5"}})",
         "failure /timepoint/value: -> Invalid TimePoint value"},
        {R"({"_type": "BoundaryAbsolute", "timepoint": {"_type": "Time", "value": "5"}})",
         "failure /timepoint/_type: -> Invalid type Time : TimePoint expected"},
        {R"({"_type": "BoundaryRelative", "origin": "Absolute"})",
         "ends-process /origin: -> Bad origin for BoundaryRelative"},
        {R"({"_type": "BoundaryRelative", "origin": "absolute", "offset": "5"})",
         "invalid-value /origin:; wrong-type /offset:"},
        {R"({"_type": "MediaInput", "metadata": {"a": "1", "a.b": 1, "qiv.peloperatorX.y": "z", "qiv.peloperatorX": "y",
             "qiv.peloperator.serverId": 15, "qiv.peloperator.index": "1"}})",
         "invalid-value /metadata/qiv.peloperator.serverId:; wrong-type /metadata/qiv.peloperator.index:; "
         "unknown-member /metadata/a:; wrong-type /metadata/a.b:; unknown-member /metadata/qiv.peloperatorX.y:"},
        {R"({"_type": "MediaInput", "playingStatus": "Idle", "recordingStatus": "idle", "name": null,
             "lastTodTimecode": "10:00:00;00@25", "totalCapacity": {"value": "5"}, "remainingCapacity":
             {"_type": "Duration", "value": "18446744073709551616"}})",
         "wrong-type /name:; invalid-value /recordingStatus:; invalid-value /lastTodTimecode:; "
         "invalid-value /remainingCapacity/value:; missing-member /totalCapacity:; unknown-member /playingStatus:"},
        {R"({"_type": "MediaOutput", "locationOnAir": [[[1]]], "mediaAssetOnAir": {"id": 5}})",
         "invalid-value /mediaAssetOnAir/id:; ignored /locationOnAir:"},
        {R"({"_type": "MediaOutput", "mediaAssetOnAir": {"id": "x", "mediaAsset": {"id": "y"}, "z": 1}})",
         "ignored /mediaAssetOnAir/id:; unknown-member /mediaAssetOnAir/z:"},
        {R"({"_type": "MediaOutput", "mediaAssetOnAir": {"_type": "SequenceRef", "id": "x"}})",
         "failure /mediaAssetOnAir/_type: -> Bad _type"},
        // The order of reading, which is not the order of writing; what comes after a failure is told all the same.
        {R"({"_type": "MediaOutput", "currentTimePointOnAir": {"_type": "TimePoint", "value": ""},
             "sequence": {"assetBlockOnAir": {"_type": "AssetBlock"}}, "speedOnAir": {}})",
         "failure /speedOnAir: -> Speed is empty; failure /sequence/assetBlockOnAir/_type: -> Invalid type AssetBlock "
         ": "
         "AssetBlockOnAir expected; ends-process /currentTimePointOnAir/value: -> stoll"},
        {R"({"currentTimePointOnAir": {"_type": "TimePoint", "value": "x"}})", // the reader of players takes it
         "failure : -> Invalid JSON type (undefined); ends-process /currentTimePointOnAir/value: -> stoll"},
        {R"({"_type": "MediaOutput", "currentTimePointOnAir": {"_type": "Time", "value": "x"}})",
         "invalid-value /currentTimePointOnAir/_type:"},
    };
    for (const auto& [document, expected] : cases)
    {
        std::string found;
        for (const auto& finding : InspectDocument(Parse(document)))
            found.append(found.empty() ? "" : "; ")
                .append(ToString(finding.kind))
                .append(" " + finding.pointer + ":")
                .append(finding.readerMessage.empty() ? "" : " -> " + finding.readerMessage);
        EXPECT_EQ(found, expected) << document;
    }
    std::string sentences;
    for (const auto& finding : InspectDocument(Parse(R"({"_type": "MediaInput", "recordingStatus": "Stop\n", "name": 5,
             "metadata": {"a": "1", "a.b": 1, "qiv.peloperatorX.y": "z"}, "mediaAssetOnAir": {"id": 5}})")))
        sentences += finding.sentence + '\n';
    EXPECT_EQ(sentences, R"(is an integer of 32 bits, where a string belongs; it is skipped
is no string; its text is read, "5"
"a" has no dot and so belongs to no profile; it is skipped
is no string, as all metadata but the operator's are; it is skipped
"qiv.peloperatorX.y" is in the namespace of the operator profile; it is skipped
"Stop\n" is none of Idle, Pause, Recording; it is read as Idle
)");
}

TEST(ReadText, TellsWhatIsWrongAndWhere)
{
    const std::string deep(101, '[');
    const struct
    {
        std::string text;
        std::size_t line, column;
        const char* message;
        const char* pointer = "";
    } cases[] = {
        {"", 1, 1, "the text is empty"},
        {"\r\n\r ", 3, 2, "the text is empty"},
        {"\xEF\xBB\xBF{}", 1, 1, "a byte order mark may not stand before JSON"},
        {"{\n  \"id\": \"a\tb\"}", 2, 11, "a control character may not stand in a string"},
        {"{\"\\\"[\":\n" + deep, 2, 100, "objects and arrays are nested too deeply"},
        {"{\"a\": 1,\n \"a\": 2}", 2, 2, "Duplicate key: 'a'"},
        {"{} {}", 1, 4, "Extra non-whitespace after JSON value."},
        {"{ // \n}", 1, 3, "a comment may not stand in JSON"},
        {"\n5", 2, 1, "a document is an object or an array"},
        {"{\"a\": 1e999}", 1, 7, "'1e999' is no JSON number, or too large for one of 64 bits"},
        {"{\"_type\": \"MediaOutput\",\n\"inBoundary\": {\"_type\": \"BoundaryRelative\", \"origin\": \"Absolute\"}}",
         2, 55, "\"Absolute\" is the origin of a relative boundary, which ends the process", "/inBoundary/origin"},
        {"{\"_type\": \"MediaOutput\",\n \"speedOnAir\": {}}", 2, 16, "Speed is empty", "/speedOnAir"},
        {R"({"_type": "MediaInput"})", 1, 11,
         "Inconsistent types - cannot merge JSON-MediaInput source with MediaOutput destination.", "/_type"},
    };
    for (const auto& [text, line, column, message, pointer] : cases)
    {
        auto channel = FromText<JsonToMediaIOConverter, MediaOutput>(fullOutput);
        for (auto* const read : {static_cast<TextResult (*)(std::string_view, MediaIO&)>(MergeText),
                                 static_cast<TextResult (*)(std::string_view, MediaIO&)>(ReadSnapshotText)})
        {
            const auto result = read(text, channel);
            EXPECT_FALSE(result);
            EXPECT_EQ(result.ErrorMessage(), message) << text;
            EXPECT_EQ(std::pair(result.Position().line, result.Position().column), std::pair(line, column)) << text;
            EXPECT_EQ(result.Pointer(), pointer) << text;
        }
        EXPECT_EQ(Written<MediaIOToJsonConverter>(channel), fullOutput);
    }
    JsonObject json;
    EXPECT_TRUE(ParseText(deep.substr(1) + std::string(100, ']'), json));
}

TEST(ReadText, MergesAndReplaces)
{
    auto channel = FromText<JsonToMediaIOConverter, MediaInput>(fullInput);
    EXPECT_TRUE(MergeText(R"({"_type": "MediaInput", "name": "N"})", channel));
    EXPECT_EQ(channel.RecordingStatus(), RecordingStatus::Recording);
    EXPECT_TRUE(ReadSnapshotText(R"({"_type": "MediaInput", "metadata": {"a.b": "c"}})", channel));
    EXPECT_EQ(Written<MediaIOToJsonConverter>(channel),
              R"({"_type":"MediaInput","id":"c1","metadata":{"a.b":"c"},"recordingStatus":"Idle"})");
    EXPECT_TRUE(ReadSnapshotText(R"({"_type": "MediaInput", "id": "other"})", channel));
    EXPECT_EQ(channel.Id().Value(), "other");

    Speed speed(1, 2);
    EXPECT_TRUE(MergeText(R"({"numerator": 3})", speed));
    EXPECT_EQ(speed, Speed(3, 2));
    EXPECT_TRUE(ReadSnapshotText(R"({"numerator": 3})", speed));
    EXPECT_EQ(speed, Speed(3, 0));
    SequenceOutput sequence;
    Node node;
    EXPECT_TRUE(MergeText(fullSequenceOutput, sequence) && MergeText(fullNode, node));
    EXPECT_EQ(Written<SequenceOutputToJsonConverter>(sequence) + Written<NodeToJsonConverter>(node),
              fullSequenceOutput + fullNode);
    std::unique_ptr<Boundary> boundary;
    EXPECT_TRUE(MergeText(R"({"_type": "BoundaryRelative", "offset": 5})", boundary));
    EXPECT_FALSE(MergeText(R"({"_type": "BoundaryAbsolute", "timepoint": 5})", boundary));
    EXPECT_EQ(Written<BoundaryToJsonConverter>(boundary),
              R"({"_type":"BoundaryRelative","origin":"RelativeToCorrespondingMediaBoundary","offset":5})");
}

} // namespace Qiv::Tests
