#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>

#include <Converters/Conversions.h>
#include <Converters/ModelGenerator.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <string>
#include <vector>

namespace Qiv::Tests
{

using namespace DataModel::Tarvonel::Serialization::Json;
using Common::Serialization::Result;

namespace
{

std::string Text(const MediaIO& channel)
{
    return Written<MediaIOToJsonConverter>(channel);
}
std::string Text(const SequenceOutput& sequence)
{
    return Written<SequenceOutputToJsonConverter>(sequence);
}
std::string Text(const Speed& speed)
{
    return Written<SpeedToJsonConverter>(speed);
}
std::string Text(const Node& node)
{
    return Written<NodeToJsonConverter>(node);
}
std::string Text(const std::unique_ptr<Boundary>& boundary)
{
    return Written<BoundaryToJsonConverter>(boundary);
}

// What an entity holds, also what its writer leaves out.
template <typename Entity>
std::string Dump(const Entity& entity)
{
    auto text = Text(entity);
    if constexpr (std::is_same_v<Entity, SequenceOutput>)
    {
        if (const auto sequence = entity.SequenceOnAir().Pointer())
            text += " sequence " + sequence->Id().Value() + '/' + sequence->Name();
    }
    if constexpr (std::is_base_of_v<MediaIO, Entity>)
    {
        if (const auto asset = entity.MediaAssetOnAir().Pointer())
            text += Written<DataModel::MediaAssets::Serialization::Json::MediaAssetToJsonConverter>(*asset);
        if (const auto profile = entity.Metadata().Find(FullyQualifiedName("qiv.peloperator")))
            text += " index " + std::to_string(dynamic_cast<const PelOperatorMetadataProfile&>(*profile).Index());
    }
    if constexpr (std::is_same_v<Entity, MediaOutput>)
        text += Text(entity.SpeedOnAir()) + (entity.Sequence() ? Dump(*entity.Sequence()) : "");
    return text;
}

template <typename Reader, typename Entity>
Entity FromText(const std::string& text)
{
    Entity entity{};
    Read<Reader>(text, entity);
    return entity;
}

// One kind of document: how it is read into an empty and into a full entity.
struct Kind
{
    std::function<std::string(ModelGenerator&)> generate; // a text of the writer
    std::function<std::string(const JsonObject&)> read;   // "failure text | what the entities then hold"
    std::function<void(const JsonObject&, ModelGenerator&)> checkWholeReading;
};

template <typename Reader, typename Entity, typename Make>
Kind KindOfDocument(const std::string& full, Make make)
{
    const auto to = [](const JsonObject& json, Entity& entity) -> Result { return Reader().To(json, entity); };
    Kind kind;
    kind.generate = [make](ModelGenerator& generator) { return Text(make(generator)); };
    kind.read = [to, full](const JsonObject& json)
    {
        Entity empty{};
        const auto result = to(json, empty);
        auto target = FromText<Reader, Entity>(full);
        static_cast<void>(to(json, target));
        return result.ErrorMessage() + std::string(" | ") + Dump(empty) + Dump(target);
    };
    kind.checkWholeReading = [to, make](const JsonObject& json, ModelGenerator& generator)
    {
        auto target = make(generator);
        const auto before = Dump(target);
        const auto again = [&] // the same entity, sharing nothing
        {
            if constexpr (std::is_same_v<Entity, std::unique_ptr<Boundary>>)
                return target != nullptr ? target->Clone() : nullptr;
            else
                return IndependentCopy(target);
        };
        auto merged = again();
        auto snapshot = Entity{};
        auto read = again();
        const auto succeeds = to(json, merged);
        if constexpr (std::is_base_of_v<MediaIO, Entity>)
        {
            snapshot.Id(target.Id());
            read = target; // shares the profiles, which neither reading may change
        }
        static_cast<void>(to(json, snapshot));
        ASSERT_STREQ(ReadSnapshot(json, read).ErrorMessage(), succeeds.ErrorMessage());
        ASSERT_EQ(Dump(read), succeeds ? Dump(snapshot) : before);
        if constexpr (std::is_base_of_v<MediaIO, Entity>)
            read = target;
        else
            read = again();
        ASSERT_STREQ(MergeWhole(json, read).ErrorMessage(), succeeds.ErrorMessage());
        ASSERT_EQ(Dump(read), succeeds ? Dump(merged) : before);
        ASSERT_EQ(Dump(target), before);
    };
    return kind;
}

const std::vector<Kind>& Kinds()
{
    static const std::vector<Kind> kinds = {
        KindOfDocument<JsonToMediaIOConverter, MediaInput>(fullInput,
                                                           [](ModelGenerator& g) { return g.MakeMediaInput(); }),
        KindOfDocument<JsonToMediaIOConverter, MediaOutput>(fullOutput,
                                                            [](ModelGenerator& g) { return g.MakeMediaOutput(); }),
        KindOfDocument<JsonToSequenceOutputConverter, SequenceOutput>(fullSequenceOutput, [](ModelGenerator& g)
                                                                      { return g.MakeSequenceOutput(); }),
        KindOfDocument<JsonToSpeedConverter, Speed>(R"({"numerator":-7,"denominator":3})",
                                                    [](ModelGenerator& g) { return g.MakeSpeed(); }),
        KindOfDocument<JsonToNodeConverter, Node>(fullNode, [](ModelGenerator& g) { return g.MakeNode(); }),
        KindOfDocument<JsonToBoundaryConverter, std::unique_ptr<Boundary>>(
            R"({"_type":"BoundaryRelative","offset":3})", [](ModelGenerator& g) { return g.MakeBoundary(); }),
    };
    return kinds;
}

// All members of objects in a document, as pointers.
void ListMembers(const JsonObject& json, const std::string pointer, std::vector<std::string>& pointers)
{
    for (const auto& name : json.isObject() ? json.getMemberNames() : JsonObject::Members())
    {
        std::string escaped;
        for (const char character : name)
            escaped += character == '~' ? "~0" : character == '/' ? "~1" : std::string(1, character);
        pointers.push_back(pointer + '/' + escaped);
        ListMembers(json[name], pointers.back(), pointers);
    }
}

struct Place
{
    JsonObject* parent;
    std::string name;
};

// Resolves a pointer to a member or an element, as RFC 6901 says.
Place Resolve(JsonObject& document, const std::string& pointer)
{
    Place place{&document, {}};
    for (std::size_t start = 1, end = 0; start <= pointer.size(); start = end + 1)
    {
        if (end != 0)
            place.parent =
                place.parent->isArray() ? &(*place.parent)[std::stoi(place.name)] : &(*place.parent)[place.name];
        end = std::min(pointer.find('/', start), pointer.size());
        place.name = pointer.substr(start, end - start);
        for (const auto& [escape, character] : {std::pair("~1", "/"), std::pair("~0", "~")})
            for (auto at = place.name.find(escape); at != std::string::npos; at = place.name.find(escape, at + 1))
                place.name.replace(at, 2, character);
    }
    return place;
}

// The document without a member or an element; null when that leaves an empty object, which readers refuse.
JsonObject Without(JsonObject document, const std::string& pointer)
{
    const auto place = Resolve(document, pointer);
    if (place.parent->isArray())
        place.parent->removeIndex(static_cast<::Json::ArrayIndex>(std::stoi(place.name)), nullptr);
    else
        place.parent->removeMember(place.name);
    return place.parent->empty() && place.parent->isObject() ? JsonObject() : document;
}

void Mutate(JsonObject& document, ModelGenerator& generator)
{
    static const auto values =
        Parse(R"([null, true, false, 0, 1, -5, 15, 20, 1.5, 3.0, 5000000000, 1e20, "", "x", "Tod",
        "12abc", "+7", " 8", "99999999999999999999", "-9223372036854775809", "Absolute", "Loop", "Node", "TimePoint",
        "10:00:00:00@25", "10:00:00;00@25", "-1-0-1-0-1T10:00:00:00@25", [], ["a", 1, null], {}, {"x": 1}, {"id": "r"},
        {"id": 5}, {"id": {}}, {"_type": 5, "id": "r"}, {"_type": null, "id": "r"}, {"_type": "Duration", "value": "7"},
        {"_type": "BoundaryRelative", "origin": "Absolute"}, {"_type": "TimePoint", "value": "seven"},
        {"_type": "TimePoint", "value": 7}, {"_type": "Speed"}, {"a.b": 1, "a": "1", "qiv.peloperatorX.y": "z"}])");
    static const char* const names[] = {
        "other",    "_type",      "id",          "metadata",      "locationOnAir",
        "sequence", "inBoundary", "outBoundary", "mediaAsset",    "value",
        "origin",   "offset",     "speedOnAir",  "remainingTime", "qiv.peloperator.index",
        "a.b",      "~/",         "timepoint",   "lastTimePoint", "currentTimePointOnAir"};
    std::vector<std::string> pointers;
    ListMembers(document, "", pointers);
    if (pointers.empty())
        return;
    const auto place = Resolve(document, pointers[generator.Below(static_cast<std::uint32_t>(pointers.size()))]);
    const auto& value = values[generator.Below(values.size())];
    if (const auto action = generator.Below(4); action == 0)
        place.parent->removeMember(place.name);
    else
        (*place.parent)[action == 1 ? names[generator.Below(std::size(names))] : place.name] = value;
}

bool IsAtOrBelow(const std::string& pointer, const std::string& above)
{
    return pointer.compare(0, above.size(), above) == 0 &&
           (pointer.size() == above.size() || pointer[above.size()] == '/');
}

// Whether leaving the member out gives the same: values that a new object has anyway.
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

} // namespace

TEST(InspectDocument, FindsNothingInWhatWritersWrite)
{
    ModelGenerator generator(1);
    for (int i = 0; i < 3000; ++i)
    {
        const auto text = Kinds()[static_cast<std::size_t>(i) % Kinds().size()].generate(generator);
        for (const auto& finding : InspectDocument(Parse(text)))
            FAIL() << text << '\n' << finding.pointer << ": " << finding.sentence;
    }
}

TEST(InspectDocument, TellsWhatReadersDoWithAnyDocument)
{
    ModelGenerator generator(2);
    int successes = 0, failures = 0, skipped = 0, used = 0, fatal = 0;
    for (int i = 0; i < 6000; ++i)
    {
        const auto& kind = Kinds()[static_cast<std::size_t>(i) % Kinds().size()];
        auto document = Parse(kind.generate(generator));
        const auto type = document["_type"].asString();
        for (auto count = generator.Below(4); count > 0; --count)
            Mutate(document, generator);
        if (document.empty() || document["_type"] != type)
            continue;

        SCOPED_TRACE(document.toStyledString());
        const auto findings = InspectDocument(document);
        const auto* const failure = FirstFailure(findings);
        if (FirstFatal(findings) != nullptr)
        {
            if (failure == nullptr && ++fatal <= 20)
            {
                ASSERT_EXIT(kind.read(document), testing::KilledBySignal(SIGABRT), "");
            }
            continue;
        }
        const auto outcome = kind.read(document);
        ASSERT_EQ(outcome.substr(0, outcome.find(" | ")), failure != nullptr ? failure->readerMessage : "");
        kind.checkWholeReading(document, generator);
        if (testing::Test::HasFatalFailure())
            return;
        if (failure != nullptr)
        {
            ++failures;
            continue;
        }
        ++successes;

        for (const auto& finding : findings)
        {
            const auto without = Without(document, finding.pointer);
            if (finding.sentence.find("read as ") != std::string::npos || without.isNull() ||
                finding.sentence.find("its text is read") != std::string::npos)
                continue;
            ++skipped;
            ASSERT_EQ(kind.read(without), outcome) << finding.pointer << ": " << finding.sentence;
        }
        std::vector<std::string> members;
        ListMembers(document, "", members);
        for (const auto& member : members)
        {
            const auto parent = member.substr(0, member.rfind('/'));
            const auto concerns = [&](const Finding& finding)
            {
                return IsAtOrBelow(finding.pointer, member) || IsAtOrBelow(member, finding.pointer) ||
                       (!parent.empty() && IsAtOrBelow(finding.pointer, parent));
            };
            const auto place = Resolve(document, member);
            const auto isRedundant =
                place.name == "_type" || IsDefault((*place.parent)[place.name]) ||
                (place.name == "id" && parent.size() > 9 && parent.substr(parent.size() - 9) != "lockOnAir" &&
                 (place.parent->isMember("mediaAsset") || place.parent->isMember("sequence"))) ||
                (document.isMember("totalCapacity") && document.isMember("remainingCapacity") &&
                 member.find("Capacity") != std::string::npos);
            const auto without = Without(document, member);
            if (isRedundant || without.isNull() || std::any_of(findings.begin(), findings.end(), concerns) ||
                FirstFatal(InspectDocument(without)) != nullptr)
                continue;
            ++used;
            ASSERT_NE(kind.read(without), outcome) << member << " is read, but not found to be ignored";
        }
    }
    // Otherwise the mutations are too tame or too wild to show anything.
    EXPECT_GT(successes, 1500);
    EXPECT_GT(failures, 500);
    EXPECT_GT(skipped, 1000);
    EXPECT_GT(used, 5000);
    EXPECT_GT(fatal, 5);
}

// Each document with its findings: kind, pointer, and the reader's text after an arrow.
TEST(InspectDocument, NamesKindPlaceAndReadersText)
{
    const struct
    {
        const char* document;
        const char* findings;
    } cases[] = {
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
        {R"({"_type": "MediaInput", "metadata": {"a": "1", "a.b": 1, "qiv.peloperatorX.y": "z", "qiv.x": "y",
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
    const auto sentence = InspectDocument(Parse(R"({"_type": "MediaInput", "recordingStatus": "Stop\n"})"))[0].sentence;
    EXPECT_EQ(sentence, R"("Stop\n" is none of Idle, Pause, Recording; it is read as Idle)");
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
        EXPECT_EQ(Text(channel), fullOutput);
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
    EXPECT_EQ(Text(channel), R"({"_type":"MediaInput","id":"c1","metadata":{"a.b":"c"},"recordingStatus":"Idle"})");
    EXPECT_TRUE(ReadSnapshotText(R"({"_type": "MediaInput", "id": "other"})", channel));
    EXPECT_EQ(channel.Id().Value(), "other");

    Speed speed(1, 2);
    EXPECT_TRUE(MergeText(R"({"numerator": 3})", speed));
    EXPECT_EQ(Text(speed), R"({"_type":"Speed","numerator":3,"denominator":2})");
    EXPECT_TRUE(ReadSnapshotText(R"({"numerator": 3})", speed));
    EXPECT_EQ(speed.Denominator(), 0u);
    SequenceOutput sequence;
    EXPECT_TRUE(MergeText(fullSequenceOutput, sequence));
    Node node;
    EXPECT_TRUE(MergeText(fullNode, node));
    std::unique_ptr<Boundary> boundary;
    EXPECT_TRUE(MergeText(R"({"_type": "BoundaryRelative", "offset": 5})", boundary));
    EXPECT_EQ(Text(sequence) + Text(node), fullSequenceOutput + fullNode);
    EXPECT_FALSE(MergeText(R"({"_type": "BoundaryAbsolute", "timepoint": 5})", boundary));
    EXPECT_EQ(Text(boundary),
              R"({"_type":"BoundaryRelative","origin":"RelativeToCorrespondingMediaBoundary","offset":5})");
}

} // namespace Qiv::Tests
