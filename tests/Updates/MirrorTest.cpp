#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Mirror.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/Clone.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/HaveEqualContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include "Converters/ModelGenerator.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace Qiv::Tests
{
namespace
{

using namespace DataModel::Tarvonel::Serialization::Json;
using namespace DataModel::Tarvonel::Serialization::Json::Documents;
using namespace DataModel::Tarvonel::Serialization::Json::Mirrors;

std::string All(const Mirror& mirror)
{
    std::ostringstream stream;
    mirror.WriteAll(stream);
    return stream.str();
}

std::string Told(const ApplyResult& result)
{
    auto told = std::string(ToString(result.Effect()));
    told += ' ' + std::string(result.Kind() ? ToString(*result.Kind()) : "nothing") + ' ' + result.Id();
    if (!result)
        told += ": " + std::to_string(result.Position().line) + ':' + std::to_string(result.Position().column) + ' ' +
                result.Pointer() + ' ' + result.ErrorMessage();
    return told;
}

TEST(Mirror, AppliesDocumentsOrTellsWhyNot)
{
    const std::string recorder = R"({"_type":"MediaInput","id":"c1","name":"A","recordingStatus":"Idle"})";
    const std::vector<std::pair<std::string, std::string>> documents = {
        {recorder, "created MediaInput c1"},
        {recorder, "unchanged MediaInput c1"},
        {R"({"_type":"MediaInput","id":"c1","recordingStatus":"Recording"})", "changed MediaInput c1"},
        {R"({"_type":"MediaInput","id":"c1","recordingStatus":5,"other":1})", "unchanged MediaInput c1"},
        {R"({"_type":"MediaOutput","id":"c2"})", "created MediaOutput c2"},
        {R"({"_type":"Node","id":"c1","hostName":"h"})", "created Node c1"},
        {R"({"_type":"Node","id":"c1","hostName":"h"})", "unchanged Node c1"},
        {R"({"_type":"Node","id":"c1"})", "changed Node c1"},
        {R"({"_type":"MediaOutput","id":"c1"})",
         "refused MediaOutput c1: 1:10 /_type Inconsistent types - cannot merge JSON-MediaOutput source with "
         "MediaInput destination."},
        {R"({"_type":"MediaInput","id":"c1","name":"B","lastTimePoint":5})",
         "refused MediaInput c1: 1:60 /lastTimePoint TimePoint is empty"},
        {R"({"_type":"MediaOutput","id":"c3","inBoundary":{}})",
         "refused MediaOutput c3: 1:47 /inBoundary Boundary is empty"},
        {R"({"_type":"MediaInput","name":"B"})", "refused MediaInput : 1:1  the document has no identifier"},
        {R"( {"_type":"Node","id":""})", "refused Node : 1:2  the document has no identifier"},
        {R"({"_type":"Node","id":5})", "refused Node : 1:1  the document has no identifier"},
        {R"({"_type":"Speed","id":"c1"})",
         "refused Speed : 1:1  a mirror keeps nodes and channels, and this is a Speed"},
        {R"({"_type":"Other","id":"c1"})",
         "refused nothing : 1:10 /_type Invalid JSON type ('Other') : 'MediaInput' or 'MediaOutput' expected"},
        {"[]", "refused nothing : 1:1  MediaIO is empty"},
    };
    Mirror mirror;
    for (const auto& [document, told] : documents)
    {
        const auto before = All(mirror);
        const auto result = mirror.Apply(document);
        EXPECT_EQ(Told(result), told) << document;
        EXPECT_EQ(static_cast<bool>(result), result.Effect() != Effect::Refused);
        EXPECT_EQ(All(mirror) != before, result.Effect() == Effect::Created || result.Effect() == Effect::Changed);
        EXPECT_EQ(mirror.Apply(Parse(document)).ErrorMessage(), result.ErrorMessage());
    }
    const auto fatal = mirror.Apply(R"({"_type":"MediaOutput","id":"c2","currentTimePointOnAir":)"
                                    R"({"_type":"TimePoint","value":"soon"}})");
    EXPECT_EQ(fatal.Pointer(), "/currentTimePointOnAir/value");
    EXPECT_EQ(Told(mirror.Apply("{")).substr(0, 16), "refused nothing ");

    const std::string node = R"({"_type":"Node","id":"c1"})";
    const std::string player = R"({"_type":"MediaOutput","id":"c2","playingStatus":"Idle"})";
    EXPECT_EQ(All(mirror), node + '\n' +
                               R"({"_type":"MediaInput","id":"c1","name":"A","recordingStatus":"Recording"})" + '\n' +
                               player + '\n');

    std::vector<Finding> findings;
    ReadOptions options;
    options.findings = &findings;
    EXPECT_EQ(mirror.ApplySnapshot(R"({"_type":"MediaInput","id":"c1","x":1})", options).Effect(), Effect::Changed);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].pointer, "/x");
    EXPECT_EQ(mirror.Apply(Parse(R"({"_type":"MediaInput","y":1})"), options).Effect(), Effect::Refused);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].pointer, "/y");
    ASSERT_NE(mirror.FindChannel("c1"), nullptr);
    EXPECT_EQ(mirror.FindChannel("c1")->Name(), "");
    EXPECT_EQ(mirror.Channels().size(), 2U);

    EXPECT_TRUE(mirror.RemoveChannel("c1"));
    EXPECT_FALSE(mirror.RemoveChannel("c1"));
    EXPECT_NE(mirror.FindNode("c1"), nullptr);
    EXPECT_TRUE(mirror.RemoveNode("c1"));
    EXPECT_EQ(All(mirror), player + '\n');
}

TEST(Mirror, TellsNoChangeWhereWritersShowNone)
{
    for (const std::string document : {
             R"({"_type":"Node","id":"n","hostName":"a\u0000b"})",
             R"({"_type":"MediaInput","id":"c","metadata":{"a.b":"\u0000b"}})",
             R"({"_type":"MediaOutput","id":"c","sequence":{"_type":"SequenceOutput","assetBlockOnAir":)"
             R"({"_type":"AssetBlockOnAir","id":"\u0000b","mediaAsset":{"_type":"MediaAssetRef","id":"r"}}}})",
         })
    {
        Mirror mirror;
        EXPECT_EQ(mirror.Apply(document).Effect(), Effect::Created);
        auto without = document;
        without.erase(document.find("\\u"), 7);
        EXPECT_EQ(mirror.Apply(without).Effect(), Effect::Unchanged) << without;
    }
}

TEST(Mirror, HoldsWhatEachChannelHasBeenToldAndTellsWhatHasChanged)
{
    ModelGenerator generator(3);
    Mirror mirror;
    std::map<std::string, std::unique_ptr<MediaIO>> expected;
    for (int i = 0; i < 1500 && !HasFailure(); ++i)
    {
        const auto number = generator.Below(20);
        const auto id = std::to_string(number);
        auto document = Parse(generator.Document(number % 2 == 0 ? "MediaInput" : "MediaOutput"));
        document["id"] = id;
        for (const auto& key : document.getMemberNames())
            if (key != "_type" && key != "id" && generator.Below(3) != 0)
                document.removeMember(key);
        const auto text = document.toStyledString();
        const bool isSnapshot = generator.Below(10) == 0;

        auto& channel = expected[id];
        const auto before = channel != nullptr ? ToText(*channel) : "";
        if (channel == nullptr || isSnapshot)
            channel = number % 2 == 0 ? std::unique_ptr<MediaIO>(std::make_unique<MediaInput>())
                                      : std::make_unique<MediaOutput>();
        ASSERT_TRUE(MergeText(text, *channel));

        const auto result = isSnapshot ? mirror.ApplySnapshot(text) : mirror.Apply(document);
        EXPECT_EQ(ToText(*mirror.FindChannel(id)), ToText(*channel));
        EXPECT_EQ(ToString(result.Effect()), before.empty()               ? "created"
                                             : before == ToText(*channel) ? "unchanged"
                                                                          : "changed")
            << before << text;
    }

    // Whatever has been removed, the others are found.
    for (int i = 0; i < 1000; ++i)
    {
        const auto id = std::to_string(generator.Below(300));
        const auto isKnown = expected.count("n" + id) != 0;
        ASSERT_EQ(mirror.FindNode(id) != nullptr, isKnown);
        if (generator.Below(3) != 0)
        {
            EXPECT_EQ(mirror.Apply(R"({"_type":"Node","id":")" + id + "\"}").Effect() == Effect::Created, !isKnown);
            expected["n" + id] = nullptr;
            continue;
        }
        EXPECT_EQ(mirror.RemoveNode(id), isKnown);
        expected.erase("n" + id);
    }
    ASSERT_EQ(mirror.Nodes().size() + 20, expected.size());
    while (!mirror.Nodes().empty())
        EXPECT_TRUE(mirror.RemoveNode(std::string(mirror.Nodes().back()->NodeId().Value())));

    std::istringstream stream(All(mirror) + "\n{}\n");
    Mirror copy;
    std::vector<std::size_t> refused;
    const auto counts = copy.ReadAll(stream,
                                     [&](std::size_t line, const ApplyResult& result)
                                     {
                                         if (!result)
                                             refused.push_back(line);
                                     });
    EXPECT_EQ(All(copy), All(mirror));
    EXPECT_EQ(counts.created, 20U);
    EXPECT_EQ(counts.changed + counts.unchanged, 0U);
    EXPECT_EQ(counts.refused, 1U);
    EXPECT_EQ(refused, std::vector<std::size_t>{22});
}

} // namespace
} // namespace Qiv::Tests
