#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>

#include <Converters/ModelGenerator.h>

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
template <typename Entity>
std::string Dump(const Entity& entity)
{
    auto text = Written(entity);
    if constexpr (std::is_same_v<Entity, SequenceOutput>)
        if (const auto sequence = entity.SequenceOnAir().Pointer())
            text += " sequence " + sequence->Id().Value() + '/' + sequence->Name();
    if constexpr (std::is_base_of_v<MediaIO, Entity>)
    {
        if (const auto asset = entity.MediaAssetOnAir().Pointer())
            text += Written(*asset);
        if (const auto profile = entity.Metadata().Find("qiv.peloperator"))
            text += " index " + std::to_string(dynamic_cast<const PelOperatorMetadataProfile&>(*profile).Index());
    }
    if constexpr (std::is_same_v<Entity, MediaOutput>)
        text += Written(entity.SpeedOnAir()) + (entity.Sequence() ? Dump(*entity.Sequence()) : "");
    return text;
}

// All members and elements of a document: RFC 6901 pointer to the keys that it consists of.
using Keys = std::vector<std::string>;
std::map<std::string, Keys> Places(const JsonObject& json, const std::string& pointer = "", const Keys& keys = {})
{
    std::map<std::string, Keys> places;
    for (auto value = json.begin(); value != json.end(); ++value)
    {
        auto below = keys;
        below.push_back(json.isArray() ? std::to_string(value.index()) : value.name());
        auto escaped = pointer + '/';
        for (const auto character : below.back())
            escaped += character == '~' ? "~0" : character == '/' ? "~1" : std::string(1, character);
        places[escaped] = below;
        places.merge(Places(*value, escaped, below));
    }
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
    static const auto mutations = Parse(FileText("Inspection/mutations.json"));
    const auto &values = mutations["values"], &names = mutations["names"], &fatal = mutations["fatal"];
    const auto places = Places(document);
    if (places.empty())
        return;
    if (generator.Below(20) == 0)
    {
        const auto name = fatal.getMemberNames()[generator.Below(fatal.size())];
        document[name] = fatal[name];
        return;
    }
    const auto& keys = std::next(places.begin(), generator.Below(places.size()))->second;
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
    int clean = 0, successes = 0, failures = 0, used = 0, fatal = 0;
};

// Generated documents of one kind, mutated up to three times: what the inspection says against what the reader does.
template <typename Entity>
void CheckKind(DocumentKind kind, const std::string& rule, const std::string& full, Counts& counts)
{
    constexpr bool isChannel = std::is_base_of_v<MediaIO, Entity>;
    // The failure's text, and what an empty and a full entity then hold.
    const ReaderOf<Entity> reader;
    const auto read = [&](const JsonObject& json)
    {
        Entity empty{};
        auto target = FromText<Entity>(full);
        const auto result = reader.To(json, empty);
        static_cast<void>(reader.To(json, target));
        return std::pair(std::string(result.ErrorMessage()), Dump(empty) + Dump(target));
    };
    ModelGenerator generator(2);
    for (int i = 0; i < 500; ++i)
    {
        auto document = Parse(generator.Document(rule));
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

        const auto target = FromText<Entity>(generator.Document(rule));
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
        const auto before = Dump(target);
        static_cast<void>(reader.To(document, merged));
        static_cast<void>(reader.To(document, snapshot));
        ASSERT_EQ(MergeWhole(document, mergedWhole).ErrorMessage(), outcome.first);
        ASSERT_EQ(ReadSnapshot(document, snapshotWhole).ErrorMessage(), outcome.first);
        ASSERT_EQ(Dump(mergedWhole), failure != nullptr ? before : Dump(merged));
        ASSERT_EQ(Dump(snapshotWhole), failure != nullptr ? before : Dump(snapshot));
        ASSERT_EQ(Dump(target), before);

        ++(failure != nullptr ? counts.failures : counts.successes);
        if (failure != nullptr)
            continue;
        for (const auto& [pointer, keys] : Places(document))
        {
            const auto parent = pointer.substr(0, pointer.rfind('/'));
            const auto concerns = [&pointer = pointer, &parent](const Finding& finding)
            {
                return IsAtOrBelow(finding.pointer, pointer) ||
                       // Another "_type" than the reader expects may make it skip the whole object.
                       IsAtOrBelow(pointer, finding.pointer.substr(0, finding.pointer.rfind("/_type"))) ||
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
    CheckKind<MediaInput>(DocumentKind::MediaInput, "MediaInput", fullInput, counts);
    CheckKind<MediaOutput>(DocumentKind::MediaOutput, "MediaOutput", fullOutput, counts);
    CheckKind<SequenceOutput>(DocumentKind::SequenceOutput, "SequenceOutput", fullSequenceOutput, counts);
    CheckKind<Speed>(DocumentKind::Speed, "Speed", R"({"numerator":-7,"denominator":3})", counts);
    CheckKind<Node>(DocumentKind::Node, "Node", fullNode, counts);
    CheckKind<std::unique_ptr<Boundary>>(DocumentKind::Boundary, "Boundary",
                                         R"({"_type":"BoundaryRelative","offset":3})", counts);
    // Otherwise the mutations are too tame or too wild to show anything.
    EXPECT_GT(counts.clean, 500);
    EXPECT_GT(counts.successes, 1500);
    EXPECT_GT(counts.failures, 500);
    EXPECT_GT(counts.used, 5000);
    EXPECT_GT(counts.fatal, 10);
}

namespace
{

void CheckFindings(const Case& each)
{
    for (const auto& document : each.Documents())
    {
        auto told = JsonObject(::Json::arrayValue);
        for (const auto& finding : InspectDocument(Parse(document)))
        {
            auto& last = told.append(JsonObject());
            last["kind"] = std::string(ToString(finding.kind));
            last["pointer"] = finding.pointer;
            last["sentence"] = finding.sentence;
            if (!finding.readerMessage.empty())
                last["message"] = finding.readerMessage;
        }
        EXPECT_EQ(told.toStyledString(), each["findings"].toStyledString()) << document;
    }
}

void ExpectPlace(const Case& each, const TextResult& result)
{
    EXPECT_FALSE(result);
    EXPECT_EQ(result.Position().line, each["line"].asUInt());
    EXPECT_EQ(result.Position().column, each["column"].asUInt());
    EXPECT_EQ(result.Pointer(), each.Text("pointer"));
    if (each.Has("message"))
    {
        EXPECT_EQ(result.ErrorMessage(), each.Text("message"));
    }
}

void CheckParsing(const Case& each)
{
    for (const auto& text : each.Documents())
    {
        JsonObject json("old");
        const auto result = ParseText(text, json);
        if (each.Has("means"))
        {
            EXPECT_EQ(result.ErrorMessage(), "");
            EXPECT_EQ(json.toStyledString(), each["means"].toStyledString());
        }
        else
        {
            ExpectPlace(each, result);
            EXPECT_TRUE(json.isNull());
        }
    }
}

const auto checkReading = [](const Case& each, const auto& conversion)
{
    using Entity = typename std::decay_t<decltype(conversion)>::Entity;
    if constexpr (std::is_constructible_v<ReadTarget, Entity&>)
    {
        const auto holds = Followed(each.JsonText("holds"));
        auto entity = FromText<Entity>(holds);
        ExpectPlace(each, MergeText(each.Text("text"), entity));
        ExpectPlace(each, ReadSnapshotText(each.Text("text"), entity));
        EXPECT_EQ(Written(entity), holds);
    }
};

const bool areRegistered[] = {
    RegisterCases("inspection/Findings.json", CheckFindings), RegisterCases("texts/Parsing.json", CheckParsing),
    RegisterCases(
        "texts/Reading.json", [](const Case& each)
        { ForEachConversion(each, "readers", [&](const auto& conversion) { checkReading(each, conversion); }); })};

} // namespace

TEST(ParseText, DoesNotLookBehindTheText)
{
    JsonObject json;
    EXPECT_EQ(ParseText(std::string_view("{\r\n").substr(0, 2), json).Position().column, 1U);
}

} // namespace Qiv::Tests
