#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

namespace Qiv::Tests
{
namespace
{

const std::string same = "=";

struct Row
{
    std::string input;
    std::string message; // empty: success
    std::string after;   // what the writer makes of the target then; "=": what it made of it before
};

/// Reads each row's input into a target that was read from `before` (a new one when it is empty).
template <typename Entity, typename Reader, typename Writer>
void Check(const std::string& before, const std::vector<Row>& rows)
{
    for (const auto& row : rows)
    {
        SCOPED_TRACE(typeid(Reader).name() + (" " + row.input));
        const auto json = Parse(row.input);
        const Reader reader;
        for (const bool asTemporary : {false, true})
        {
            Entity entity;
            if (!before.empty())
                Read<Reader>(before, entity);
            const auto unchanged = Written<Writer>(entity);
            auto temporary = json;
            const auto result = asTemporary ? reader.To(std::move(temporary), entity) : reader.To(json, entity);
            EXPECT_STREQ(result.ErrorMessage(), row.message.c_str());
            EXPECT_EQ(result, row.message.empty());
            EXPECT_EQ(Written<Writer>(entity), row.after == same ? unchanged : row.after);
            EXPECT_EQ(temporary, json);
            EXPECT_STREQ(reader.GetLastConversionError(), "");
        }
    }
}

/// Values that every reader calls empty, and others that no reader of "_type" takes.
std::vector<Row> Refusals(const std::string& emptyMessage, const std::string& type = "")
{
    std::vector<Row> rows;
    for (const auto* const shape : {"null", "[]", "[{\"id\":\"x\"}]", "5", "\"text\"", "true", "{}"})
        rows.push_back({shape, emptyMessage, same});
    for (const std::string wrong : {"Foo", "", "\xC3\xA9"})
    {
        if (!type.empty())
            rows.push_back({R"({"_type":")" + wrong + R"(","id":"x","numerator":9})",
                            "Invalid type " + wrong + " : " + type + " expected", same});
    }
    return rows;
}

/// `text` with each of the first ones, which it must hold just once, replaced by the second one.
std::string With(std::string text, const std::vector<std::pair<std::string, std::string>>& replacements)
{
    for (const auto& [from, to] : replacements)
    {
        const auto position = text.find(from);
        EXPECT_NE(position, std::string::npos) << from;
        EXPECT_EQ(text.find(from, position + 1), std::string::npos) << from;
        text.replace(position, from.size(), to);
    }
    return text;
}

std::string Nanoseconds(const std::string& type, const std::string& value)
{
    return R"({"_type":")" + type + R"(","value":")" + value + "\"}";
}

TEST(JsonToTimePointConverter, ReadsWholeNumbersOf64Bits)
{
    using Reader = JsonToTimePointConverter;
    std::vector<Row> rows = Refusals("TimePoint is empty", "TimePoint");
    for (const std::string value :
         {"\"\"", "\" 1\"", "\"1 \"", "\"1.0\"", "\"+-1\"", "\"-\"", "\"9223372036854775808\"", "9223372036854775808",
          "1.5", "null", "true", "[1]", "{}"})
        rows.push_back({"{\"value\":" + value + "}", "Invalid TimePoint value", same});
    for (const std::string value : {"0", "-9223372036854775808", "9223372036854775807"})
    {
        rows.push_back({Nanoseconds("TimePoint", value), "", Nanoseconds("TimePoint", value)});
        rows.push_back({R"({"_type":5,"value":)" + value + "}", "", Nanoseconds("TimePoint", value)});
    }
    rows.push_back({R"({"value":"+5","x":1})", "", Nanoseconds("TimePoint", "5")});
    rows.push_back({R"({"_type":"TimePoint"})", "Invalid TimePoint value", same});
    Check<TimePoint, Reader, TimePointToJsonObjectConverter>(Nanoseconds("TimePoint", "42"), rows);
}

TEST(JsonToMediaAssetConverter, Merges)
{
    auto rows = Refusals("MediaAsset is empty", "MediaAsset");
    rows.insert(rows.end(), {{fullAsset, "", fullAsset},
                             {R"({"_type":null,"id":5,"name":[],"inPoint":7,"outPoint":null})", "", same},
                             {R"({"name":"N","inPoint":{"value":"x"},"outPoint":{"value":1}})",
                              "Invalid TimePoint value", With(fullAsset, {{"Goal", "N"}})},
                             {R"({"id":"a2","inPoint":{"value":8},"outPoint":{}})", "TimePoint is empty",
                              With(fullAsset, {{"\"a1\"", "\"a2\""}, {"-1", "8"}})}});
    Check<MediaAsset, JsonToMediaAssetConverter, MediaAssetToJsonConverter>(fullAsset, rows);

    rows = Refusals("Sequence is empty", "Sequence");
    rows.push_back({R"({"id":"s2","name":1})", "", R"({"_type":"Sequence","id":"s2","name":"N"})"});
    rows.push_back({R"({"id":null,"name":""})", "", R"({"_type":"Sequence","id":"s1"})"});
    Check<Sequence, JsonToSequenceConverter, SequenceToJsonConverter>(R"({"id":"s1","name":"N"})", rows);
}

struct AssetReferenceReader : JsonToSharedReference<MediaAsset>
{
    AssetReferenceReader()
        : JsonToSharedReference("MediaAssetRef", "mediaAsset", std::make_shared<JsonToMediaAssetConverter>())
    {
    }
};
struct AssetReferenceWriter : SharedReferenceToJson<MediaAsset, false>
{
    AssetReferenceWriter()
        : SharedReferenceToJson("MediaAssetRef", "mediaAsset", std::make_shared<MediaAssetToJsonConverter>())
    {
    }
};

TEST(JsonToSharedReference, ReadsBothForms)
{
    std::vector<Row> rows = Refusals("Bad format");
    const auto reference = [](const std::string& id) { return R"({"_type":"MediaAssetRef","id":")" + id + "\"}"; };
    rows.insert(rows.end(),
                {
                    {R"({"id":"x"})", "", reference("x")},
                    {R"({"_type":"MediaAssetRef","id":"x"})", "", reference("x")},
                    {R"({"_type":5,"id":"x"})", "", reference("x")},
                    {R"({"id":""})", "", reference("")},
                    {R"({"id":7})", "", reference("7")},
                    {R"({"id":true})", "", reference("true")},
                    {R"({"id":[]})", "Bad format", same},
                    {R"({"_type":"MediaAssetRef","id":{}})", "Bad format", same},
                    {R"({"id":"x","other":1})", "Bad format", same},
                    {R"({"_type":null,"id":"x"})", "Bad format", same}, // a null "_type" does not count
                    {R"({"_type":"MediaAssetRef","id":"x","other":1})", "Bad format", same},
                    {R"({"_type":"MediaAssetRef"})", "Bad format", same},
                    {R"({"id":null})", "Bad format", same},
                    {R"({"_type":"Other","id":"x"})", "Bad _type", same},
                    {R"({"_type":"","mediaAsset":{"id":"x"}})", "Bad _type", same},
                    {R"({"id":"x","mediaAsset":"a1"})", "Bad format", same},
                    {R"({"_type":"MediaAssetRef","id":"x","mediaAsset":)" + fullAsset + "}", "", fullAssetReference},
                    {R"({"mediaAsset":)" + fullAsset + "}", "", fullAssetReference},
                    {R"({"mediaAsset":{}})", "MediaAsset is empty", same},
                    {R"({"mediaAsset":{"id":"new","outPoint":{"value":"?"}}})", "Invalid TimePoint value", same},
                });
    for (const auto& before : {reference("old"), fullAssetReference})
        Check<SharedReference<MediaAsset>, AssetReferenceReader, AssetReferenceWriter>(before, rows);
    const JsonToSharedReference<MediaAsset> withoutReader("MediaAssetRef", "mediaAsset", nullptr);
    SharedReference<MediaAsset> target;
    EXPECT_STREQ(withoutReader.To(Parse(fullAssetReference), target).ErrorMessage(), "Bad format");
}

TEST(JsonToSpeedConverter, MergesBothFields)
{
    const auto speed = [](const std::string& numerator, const std::string& denominator)
    { return R"({"_type":"Speed","numerator":)" + numerator + ",\"denominator\":" + denominator + "}"; };
    auto rows = Refusals("Speed is empty", "Speed");
    rows.push_back({R"({"_type":"speed","numerator":3})", "Invalid type speed : Speed expected", same});
    rows.push_back({R"({"numerator":3})", "", speed("3", "2")});
    rows.push_back({R"({"denominator":4})", "", speed("1", "4")});
    rows.push_back({R"({"_type":5,"numerator":-2147483648,"denominator":-1})", "", speed("-2147483648", "-1")});
    rows.push_back({R"({"numerator":3.0,"denominator":2147483647})", "", speed("3", "2147483647")});
    rows.push_back({R"({"numerator":"1","denominator":2.5})", "", same});
    rows.push_back({R"({"numerator":2147483648,"denominator":2147483648})", "", same});
    rows.push_back({R"({"numerator":-2147483649,"denominator":null,"x":0})", "", same});
    Check<Speed, JsonToSpeedConverter, SpeedToJsonConverter>(speed("1", "2"), rows);

    Speed read;
    Read<JsonToSpeedConverter>(R"({"denominator":-1})", read);
    EXPECT_EQ(read.Denominator(), 4294967295U);
}

TEST(JsonToBoundaryConverter, MakesTheKindThatTheTypeNames)
{
    const std::string empty = R"({"_type":"BoundaryAbsolute"})";
    const auto absolute = [](const std::string& value)
    { return R"({"_type":"BoundaryAbsolute","timepoint":)" + value + "}"; };
    const auto relative = [](const std::string& origin, const std::string& offset)
    { return R"({"_type":"BoundaryRelative","origin":")" + origin + R"(","offset":)" + offset + "}"; };
    const std::string standard = "RelativeToCorrespondingMediaBoundary";
    auto rows = Refusals("Boundary is empty");
    for (const std::string type :
         {"", R"("_type":null,)", R"("_type":5,)", R"("_type":"boundaryabsolute",)", R"("_type":"Boundary",)"})
        rows.push_back({"{" + type + R"("timepoint":{"value":1},"offset":1})", "Invalid _type", same});
    rows.insert(rows.end(),
                {
                    {empty, "", empty},
                    {absolute("null"), "", empty},
                    {absolute(R"({"value":7})"), "", absolute(Nanoseconds("TimePoint", "7"))},
                    {absolute("7"), "TimePoint is empty", empty},
                    {absolute(R"({"value":"x"})"), "Invalid TimePoint value", empty},
                    {R"({"_type":"BoundaryAbsolute","origin":"Absolute","offset":3})", "", empty},
                    {R"({"_type":"BoundaryRelative"})", "", relative(standard, "0")},
                    {R"({"_type":"BoundaryRelative","offset":"5","origin":5})", "", relative(standard, "0")},
                    {R"({"_type":"BoundaryRelative","offset":2147483648,"origin":null})", "", relative(standard, "0")},
                    {relative("?", "1"), "", relative(standard, "1")},
                    {relative("", "-1"), "", relative(standard, "-1")},
                    {relative("absolute", "1"), "", relative(standard, "1")},
                });
    for (const std::string origin :
         {standard.c_str(), "RelativeToOppositeMediaBoundary", "RelativeToOppositeLoadBoundary"})
        for (const std::string offset : {"-2147483648", "2147483647"})
            rows.push_back({relative(origin, offset), "", relative(origin, offset)});
    for (const auto& before : {std::string(), absolute(R"({"value":1})"), relative("", "9")})
        Check<std::unique_ptr<Boundary>, JsonToBoundaryConverter, BoundaryToJsonConverter>(before, rows);

    std::unique_ptr<Boundary> boundary;
    const JsonToBoundaryConverter reader;
    EXPECT_STREQ(reader.Append(Parse("[]"), boundary).ErrorMessage(), "Invalid _type");
    EXPECT_TRUE(reader.AppendBoundaryRelative(Parse(R"({"_type":"BoundaryAbsolute","offset":4})"), boundary));
    EXPECT_EQ(Written<BoundaryToJsonConverter>(boundary), relative(standard, "4"));
    EXPECT_TRUE(reader.AppendBoundaryAbsolute(Parse("5"), boundary));
    EXPECT_EQ(Written<BoundaryToJsonConverter>(boundary), empty);
}

TEST(JsonToSequenceOutputConverter, UpdatesMemberByMember)
{
    const std::string emptyBlock =
        R"({"_type":"AssetBlockOnAir","id":"","mediaAsset":{"_type":"MediaAssetRef","id":""}})";
    const auto newBlock = With(emptyBlock, {{"\"id\":\"\",", "\"id\":\"b9\","}});
    const auto fullBlock = R"({"_type":"AssetBlockOnAir","id":"b1","mediaAsset":)" + fullAssetReference + "}";
    const auto fullReference = fullSequenceOutput.substr(fullSequenceOutput.find("{\"_type\":\"SequenceRef"),
                                                         fullSequenceOutput.find(",\"assetBlock") -
                                                             fullSequenceOutput.find("{\"_type\":\"SequenceRef"));
    const std::string newReference = R"({"_type":"SequenceRef","id":"s2"})";
    auto rows = Refusals("SequenceOutput is empty", "SequenceOutput");
    rows.insert(
        rows.end(),
        {
            {R"({"_type":"SequenceOutput"})", "", same},
            {R"({"_type":5,"editMode":false})", "",
             With(fullSequenceOutput, {{"\"editMode\":true", "\"editMode\":false"}})},
            {R"({"editMode":"false","nextAssetBlockOnAir":null,"assetBlockOnAir":[],"sequenceOnAir":"s"})", "", same},
            {R"({"nextAssetBlockOnAir":{"id":"b9","mediaAsset":5}})", "",
             With(fullSequenceOutput, {{emptyBlock, newBlock}})},
            {R"({"assetBlockOnAir":{}})", "", With(fullSequenceOutput, {{fullBlock, emptyBlock}})},
            {R"({"sequenceOnAir":{"_type":"MediaAssetRef","id":"s2"},"editMode":false})", "Bad _type", same},
            {R"({"sequenceOnAir":{"sequence":{"_type":"X"}},"editMode":false})", "Invalid type X : Sequence expected",
             same},
            {R"({"sequenceOnAir":{"id":"s2"},"assetBlockOnAir":{"_type":"X"},"editMode":false})",
             "Invalid type X : AssetBlockOnAir expected", With(fullSequenceOutput, {{fullReference, newReference}})},
            {R"({"assetBlockOnAir":{"id":"b9"},"nextAssetBlockOnAir":{"id":"b8","mediaAsset":{}},"editMode":false})",
             "Bad format", With(fullSequenceOutput, {{fullBlock, newBlock}})},
        });
    Check<SequenceOutput, JsonToSequenceOutputConverter, SequenceOutputToJsonConverter>(fullSequenceOutput, rows);

    SequenceOutput::AssetBlockOutput block;
    const JsonToSequenceOutputConverter reader;
    EXPECT_TRUE(reader.ToAssetBlockOutput(Parse("[1]"), block));
    EXPECT_STREQ(reader.ToAssetBlockOutput(Parse(R"({"id":"kept","mediaAsset":{}})"), block).ErrorMessage(),
                 "Bad format");
    EXPECT_EQ(block.Id().Value(), "kept");
}

TEST(JsonToMetadataProfileDictionaryConverter, AddsAndUpdates)
{
    using Reader = JsonToMetadataProfileDictionaryConverter;
    using Writer = MetadataProfileDictionaryToJsonConverter;
    auto rows = Refusals("");
    rows.insert(
        rows.end(),
        {
            {R"({"nodot":"x","a.b":5,"a.c":null,"a.d":[],"a.e":{},"a.f":true})", "", same},
            {R"({"qiv.peloperator.extra":"x","qiv.peloperatorX.k":"x","qiv.peloperator.extra.k":"x"})", "", same},
            {R"({"a.b":"new","a.c":"added","qiv.pel.k":"y","a.b.":"e",".k":"root"})", "",
             R"({".k":"root","a.b":"new","a.c":"added","a.b.":"e","a.b.c":"2","qiv.pel.k":"y",)"
             R"("qiv.peloperator.serverId":1230,"qiv.peloperator.index":7,"z.":"\u0001"})"},
            // The operator's reader fails on what is left after its first member, which stays.
            {R"({"qiv.peloperator.serverId":20,"qiv.peloperator.index":"?"})", "",
             With(fullMetadata, {{"1230", "20"}})},
            {R"({"qiv.peloperator.serverId":15,"qiv.peloperator.index":-1})", "",
             With(fullMetadata, {{",\"qiv.peloperator.index\":7", ""}})},
        });
    Check<MetadataProfileDictionary, Reader, Writer>(fullMetadata, rows);
    Check<MetadataProfileDictionary, Reader, Writer>(
        "", {{R"({"a.b":"1","a.c":"2","d.e":"3"})", "", R"({"a.b":"1","a.c":"2","d.e":"3"})"},
             {R"({"qiv.peloperator.index":0})", "", R"({"qiv.peloperator.index":0})"},
             {R"({"qiv.peloperator.serverId":7})", "", "{}"}});

    // A profile of the wrong kind for its name throws; an entry without profile counts as absent.
    const FullyQualifiedName operatorName("qiv.peloperator");
    MetadataProfileDictionary dictionary;
    dictionary.Set(operatorName, nullptr);
    dictionary.Set(FullyQualifiedName("a"), nullptr);
    Read<Reader>(fullMetadata, dictionary);
    EXPECT_EQ(Written<Writer>(dictionary), fullMetadata);
    dictionary.Set(FullyQualifiedName("d"), std::make_shared<PelOperatorMetadataProfile>());
    Stringer stringer;
    EXPECT_THROW(Reader().To(Parse(R"({"a.b":"kept","d.k":"x","e.k":"never"})"), dictionary), std::bad_cast);
    EXPECT_EQ(static_cast<GenericMetadataProfile&>(dictionary.At(FullyQualifiedName("a"))).Get("b"), "kept");
    EXPECT_FALSE(dictionary.Contains(FullyQualifiedName("e")));
    dictionary.Set(operatorName, std::make_shared<GenericMetadataProfile>(operatorName));
    EXPECT_THROW(Reader().To(Parse(R"({"a.b":"never"})"), dictionary), std::bad_cast);
}

struct OperatorWriter : PelOperatorMetadataProfileToJsonConverter
{
    using PelOperatorMetadataProfileToJsonConverter::To;
    Result To(const PelOperatorMetadataProfile& profile, Stringer& stringer) const override
    {
        const auto object = stringer.ObjectScope();
        return PelOperatorMetadataProfileToJsonConverter::To(profile, stringer);
    }
};

TEST(JsonToPelOperatorMetaDataConverter, TakesOneUsableMember)
{
    const std::string empty = "PelOperatorMetadataProfile is empty";
    const std::string server = "\"qiv.peloperator.serverId\":";
    const std::string index = "\"qiv.peloperator.index\":";
    auto rows = Refusals(empty);
    for (const std::string bad : {"0", "-10", "15", "7", "\"10\"", "null", "10.5", "2147483650", "true"})
    {
        rows.push_back({"{" + server + bad + "}", empty, same});
        rows.push_back({"{" + server + bad + "," + index + "3}", "", "{" + server + "10," + index + "3}"});
    }
    rows.push_back({"{" + server + "1230}", "", "{" + server + "1230," + index + "1}"});
    rows.push_back({"{" + server + "20," + index + "\"3\"}", "", "{" + server + "20," + index + "1}"});
    rows.push_back({"{" + index + "-1}", "", "{" + server + "10}"});
    rows.push_back({"{" + index + "1.5}", empty, same});
    Check<PelOperatorMetadataProfile, JsonToPelOperatorMetaDataConverter, OperatorWriter>(
        "{" + server + "10," + index + "1}", rows);
}

TEST(JsonToNodeConverter, ReplacesTheWholeNode)
{
    auto rows = Refusals("Node is null", "Node");
    for (const std::string id : {"", R"("id":null,)", R"("id":5,)"})
        rows.push_back({"{" + id + R"("hostName":"h"})", "Node has no identifier (required)", same});
    const std::string onlyId = R"({"_type":"Node","id":"n2"})";
    for (const auto* const wrong : {"null", "true", "12.5", "[]", "{}", "[5,null]"})
    {
        std::string input = R"({"id":"n2","_type":5)";
        for (const auto* const key : {"serialNumber", "hostName", "ipAddress", "gbeIpAddresses", "chassis",
                                      "hardwareRevision", "tarvonelVersion"})
            input += std::string(",\"") + key + "\":" + wrong;
        rows.push_back({input + "}", "", onlyId});
    }
    rows.insert(rows.end(), {
                                {R"({"id":"n2"})", "", onlyId},
                                {fullNode, "", fullNode},
                                {R"({"id":"","serialNumber":"12","hostName":7})", "", R"({"_type":"Node","id":""})"},
                                {R"({"id":"n2","gbeIpAddresses":["b",5,null,"a",["c"],""]})", "",
                                 R"({"_type":"Node","id":"n2","gbeIpAddresses":["b","a",""]})"},
                            });
    Check<Node, JsonToNodeConverter, NodeToJsonConverter>(fullNode, rows);
}

/// What goes wrong in the common members, by either way of reading, with what stays applied.
std::vector<Row> CommonRows(const std::string& full, const std::string& type)
{
    const std::string start = "{\"_type\":\"" + type + "\",";
    const std::string newName = R"("id":"c2","name":"N",)";
    const auto named =
        With(full, {{fullCommonMembers.substr(0, fullCommonMembers.find("\"mediaAssetOnAir")), newName}});
    return {
        {start + R"("x":1})", "", same},
        {start + newName +
             R"("mediaAssetOnAir":{"_type":"Other","id":"x"},"metadata":{"a.b":"9"},"primaryTimecodeType":""})",
         "Bad _type", named},
        {start + newName + R"("mediaAssetOnAir":{}})", "Bad format", named},
        {start + newName + R"("mediaAssetOnAir":{"mediaAsset":{"_type":"X"}}})", "Invalid type X : MediaAsset expected",
         named},
        {start + R"("mediaAssetOnAir":{"id":"a2"}})", "",
         With(full, {{"\"mediaAssetOnAir\":" + fullAssetReference,
                      R"("mediaAssetOnAir":{"_type":"MediaAssetRef","id":"a2"})"}})},
        {start + R"("mediaAssetOnAir":{"id":""},"id":"","name":""})", "",
         With(full, {{fullCommonMembers.substr(0, fullCommonMembers.find("\"metadata")), ""}})},
        {start + newName + R"("metadata":{"qiv.peloperator.serverId":5,"a.b":"9"}})", "",
         With(named, {{R"("a.b":"1")", R"("a.b":"9")"}})},
    };
}

TEST(JsonToMediaIOConverter, DispatchesOnTheType)
{
    auto rows = Refusals("MediaIO is empty");
    for (const std::string type : {"", R"("_type":null,)", R"("_type":5,)", R"("_type":["MediaInput"],)"})
        rows.push_back({"{" + type + R"("name":"A"})", "Invalid JSON type (undefined)", same});
    for (const std::string type : {"Recorder", "mediainput", "", "MediaIO"})
        rows.push_back({R"({"_type":")" + type + R"(","name":"A"})",
                        "Invalid JSON type ('" + type + "') : 'MediaInput' or 'MediaOutput' expected", same});
    auto outputRows = rows;
    rows.push_back({R"({"_type":"MediaOutput","name":"Cam A"})",
                    "Inconsistent types - cannot merge JSON-MediaOutput source with MediaInput destination.", same});
    outputRows.push_back({R"({"_type":"MediaInput","name":"Cam A"})",
                          "Inconsistent types - cannot merge JSON-MediaInput source with MediaOutput destination.",
                          same});
    rows.push_back({R"({"_type":"MediaInput"})", "", same});
    outputRows.push_back({R"({"_type":"MediaOutput"})", "", same});
    rows.push_back({R"({"_type":"MediaInput","name":"N","recordingStatus":"Idle","lastTimePoint":0})",
                    "TimePoint is empty",
                    With(fullInput, {{"Cam \\\"A\\\" \xC3\xA9", "N"}, {"Recording\"", "Idle\""}})});
    outputRows.push_back({R"({"_type":"MediaOutput","name":"N","speedOnAir":{}})", "Speed is empty",
                          With(fullOutput, {{"Cam \\\"A\\\" \xC3\xA9", "N"}})});
    for (const auto& row : CommonRows(fullInput, "MediaInput"))
        rows.push_back(row);
    for (const auto& row : CommonRows(fullOutput, "MediaOutput"))
        outputRows.push_back(row);
    Check<MediaInput, JsonToMediaIOConverter, MediaIOToJsonConverter>(fullInput, rows);
    Check<MediaOutput, JsonToMediaIOConverter, MediaIOToJsonConverter>(fullOutput, outputRows);
}

TEST(JsonToMediaInputConverter, AppliesMembersInOrder)
{
    auto rows = Refusals("MediaInput is empty", "MediaInput");
    for (const auto& row : CommonRows(fullInput, "MediaInput"))
        rows.push_back(row);
    const std::string capacities = fullInput.substr(fullInput.find(",\"remainingCapacity"));
    const auto duration = [](const std::string& key, const std::string& value)
    { return "\"" + key + "\":" + Nanoseconds("Duration", value); };
    const auto capacitiesAre = [&](const std::string& remaining, const std::string& total)
    {
        return With(fullInput,
                    {{"\"3600000000000\"", "\"" + remaining + "\""}, {"\"7200000000000\"", "\"" + total + "\""}});
    };
    rows.insert(rows.end(),
                {
                    {R"({"_type":"MediaOutput","id":"x"})", "Invalid type MediaOutput : MediaInput expected", same},
                    {R"({"_type":5,"recordingStatus":"Pause"})", "", With(fullInput, {{"Recording\"", "Pause\""}})},
                    {R"({"recordingStatus":"recording"})", "", With(fullInput, {{"Recording\"", "Idle\""}})},
                    {R"({"recordingStatus":"Pause","lastTimePoint":5,"primaryTimecodeType":"Tod"})",
                     "TimePoint is empty", With(fullInput, {{"Recording\"", "Pause\""}})},
                    {R"({"lastTimePoint":{"_type":"X","value":1}})", "Invalid type X : TimePoint expected", same},
                    {R"({"lastTimePoint":{"value":"1x"},"totalCapacity":{"_type":"Duration","value":"0"}})",
                     "Invalid TimePoint value", same},
                    {R"({"lastTimePoint":{"value":7},"primaryTimecodeType":"?"})", "",
                     With(fullInput, {{"1458569109680000000", "7"}, {R"("primaryTimecodeType":"User",)", ""}})},
                    {R"({"lastTodTimecode":"10:00:00:00@25","lastUserTimecode":"1900-01-01T00:00:00:00@50"})", "",
                     With(fullInput, {{"2016-03-21T14:05:09:17@25", "-1-0-1-0-1T10:00:00:00@25"},
                                      {R"("lastUserTimecode":"2016-03-21T00:10:00;00@30",)", ""}})},
                    {"{" + duration("remainingCapacity", "+10") + "," + duration("totalCapacity", "4") + "}", "",
                     capacitiesAre("4", "4")},
                    {"{" + duration("remainingCapacity", "8000000000000") + "}", "",
                     capacitiesAre("8000000000000", "8000000000000")},
                    {"{" + duration("totalCapacity", "-5") + "}", "", With(fullInput, {{capacities, "}"}})},
                    {"{" + duration("remainingCapacity", "-5") + "}", "", capacitiesAre("-5", "7200000000000")},
                });
    for (const auto* const text :
         {"10:00:00:00", "24:00:00:00@25", "2016-02-30T00:00:00:00@25", "00:00:00:00@99999999999",
          "-1-0-1-0-1T10:00:00:00@25", " 10:00:00:00@25", "", "00:01:00;00@30"})
        rows.push_back(
            {std::string(R"({"lastTodTimecode":")") + text + R"(","lastUserTimecode":")" + text + "\"}", "", same});
    for (const std::string value :
         {R"({"value":"5"})", R"({"_type":5,"value":"5"})", R"({"_type":"duration","value":"5"})",
          R"({"_type":"Duration"})", R"({"_type":"Duration","value":5})", R"({"_type":"Duration","value":"5s"})",
          R"({"_type":"Duration","value":""})"})
        rows.push_back({"{\"remainingCapacity\":" + value + ",\"totalCapacity\":" + value + "}", "", same});
    Check<MediaInput, JsonToMediaInputConverter, MediaInputToJsonConverter>(fullInput, rows);
}

TEST(JsonToMediaOutputConverter, AppliesMembersInOrder)
{
    auto rows = Refusals("MediaOutput is empty", "MediaOutput");
    for (const auto& row : CommonRows(fullOutput, "MediaOutput"))
        rows.push_back(row);
    const std::string speed = R"("speedOnAir":{"_type":"Speed","numerator":-3,"denominator":2},)";
    const std::string inBoundary =
        R"("inBoundary":{"_type":"BoundaryAbsolute","timepoint":{"_type":"TimePoint","value":"5"}},)";
    const std::string outBoundary = fullOutput.substr(fullOutput.find(",\"outBoundary"));
    const std::string onAir = R"("currentTimePointOnAir":{"_type":"TimePoint","value":"0"})";
    rows.insert(
        rows.end(),
        {
            {R"({"_type":"MediaInput","id":"x"})", "Invalid type MediaInput : MediaOutput expected", same},
            {R"({"playingStatus":"?","globalLoopMode":"?","locationOnAir":{"x":1}})", "",
             With(fullOutput, {{"\"Playing\"", "\"Idle\""}, {R"("globalLoopMode":"Bounce",)", ""}})},
            {R"({"playingStatus":"Cueing","speedOnAir":{},"globalLoopMode":"None"})", "Speed is empty",
             With(fullOutput, {{"\"Playing\"", "\"Cueing\""}})},
            {R"({"speedOnAir":{"_type":"Boundary","numerator":1}})", "Invalid type Boundary : Speed expected", same},
            {R"({"speedOnAir":{"_type":"Speed","numerator":1}})", "", With(fullOutput, {{speed, ""}})},
            {R"({"speedOnAir":{"denominator":4}})", "",
             With(fullOutput, {{"-3,\"denominator\":2", "0,\"denominator\":4"}})},
            {R"({"speedOnAir":{"numerator":1,"denominator":4},"globalLoopMode":"Loop","remainingTime":)" +
                 Nanoseconds("Duration", "7") +
                 R"(,"sequence":{},"currentTimePointOnAir":{"_type":"TimePoint","value":9}})",
             "SequenceOutput is empty",
             With(fullOutput,
                  {{"-3,\"denominator\":2", "1,\"denominator\":4"}, {"Bounce", "Loop"}, {"-40000000", "7"}})},
            {R"({"sequence":{"editMode":false}})", "",
             With(fullOutput, {{fullSequenceOutput,
                                R"({"_type":"SequenceOutput","assetBlockOnAir":{"_type":"AssetBlockOnAir","id":"",)"
                                R"("mediaAsset":{"_type":"MediaAssetRef","id":""}},"editMode":false})"}})},
            {R"({"primaryTimecodeType":"User","inBoundary":{},"outBoundary":{"_type":"BoundaryAbsolute"}})",
             "Boundary is empty", With(fullOutput, {{"\"Tod\"", "\"User\""}})},
            {R"({"inBoundary":{"_type":"BoundaryAbsolute","timepoint":5}})", "TimePoint is empty", same},
            {R"({"inBoundary":{"_type":"BoundaryAbsolute"},"outBoundary":{"_type":"X"}})", "Invalid _type",
             With(fullOutput, {{inBoundary, ""}})},
            {R"({"outBoundary":{"_type":"BoundaryAbsolute"}})", "", With(fullOutput, {{outBoundary, "}"}})},
            {R"({"remainingTime":)" + Nanoseconds("Duration", "x") +
                 R"(,"todTimecodeOnAir":"2100-02-29T00:00:00:00@25",)"
                 R"("userTimecodeOnAir":"00:00:00:00@4294967296"})",
             "", same},
            {R"({"todTimecodeOnAir":"2016-03-21T14:05:09:18@25","userTimecodeOnAir":"2016-03-21T14:05:09:19@25"})", "",
             With(fullOutput, {{"09:17@25", "09:18@25"}, {"1900-01-01T00:00:00:01@50", "2016-03-21T14:05:09:19@25"}})},
        });
    const std::pair<const char*, const char*> values[] = {{"123", "123"},
                                                          {"\"123\"", "123"},
                                                          {"\"12abc\"", "12"},
                                                          {"\" \\t+5 \"", "5"},
                                                          {"\"-7.9\"", "-7"},
                                                          {"\"0x10\"", "0"},
                                                          {"\"-9223372036854775808\"", "-9223372036854775808"},
                                                          {"9223372036854775807", "9223372036854775807"},
                                                          {"\"007\"", "7"}};
    for (const auto& [value, nanoseconds] : values)
        rows.push_back({std::string(R"({"currentTimePointOnAir":{"_type":"TimePoint","value":)") + value + "}}", "",
                        With(fullOutput, {{onAir, With(onAir, {{"\"0\"", "\"" + std::string(nanoseconds) + "\""}})}})});
    rows.push_back({R"({"currentTimePointOnAir":{"_type":"TimePoint","value":-9223372036854775807}})", "",
                    With(fullOutput, {{onAir + ",", ""}})});
    for (const std::string skipped :
         {R"({"value":1})", R"({"_type":5,"value":1})", R"({"_type":"Timepoint","value":"1"})",
          R"({"_type":"TimePoint"})", R"({"_type":"TimePoint","value":9223372036854775808})", "{}"})
        rows.push_back({"{\"currentTimePointOnAir\":" + skipped + "}", "", same});
    Check<MediaOutput, JsonToMediaOutputConverter, MediaOutputToJsonConverter>(fullOutput, rows);
}

/// Reads each member with each value that is not of one of its types, into a full entity that must stay as it is.
template <typename Entity, typename Reader, typename Writer>
void CheckWrongTypes(const std::string& full, const std::vector<std::pair<std::string, std::string>>& members)
{
    // n(ull), b(oolean), i(nteger), a number that is (N)o integer, s(tring), a(rray), o(bject)
    const std::pair<char, const char*> values[] = {{'n', "null"},     {'b', "false"},     {'i', "7"},
                                                   {'N', "1.5"},      {'N', "1e300"},     {'N', "18446744073709551615"},
                                                   {'s', "\"text\""}, {'a', "[]"},        {'a', "[1]"},
                                                   {'o', "{}"},       {'o', R"({"x":1})"}};
    std::vector<Row> rows;
    const auto type = full.substr(0, full.find(','));
    for (const auto& [key, accepted] : members)
        for (const auto& [kind, value] : values)
            if (accepted.find(kind) == std::string::npos)
                rows.push_back({type + ",\"" + key + "\":" + value + "}", "", same});
    Check<Entity, Reader, Writer>(full, rows);
}

TEST(Readers, SkipMembersOfAnotherType)
{
    std::vector<std::pair<std::string, std::string>> input = {
        {"id", "s"}, {"name", "s"}, {"mediaAssetOnAir", "o"}, {"metadata", ""}, {"primaryTimecodeType", "s"}};
    auto output = input;
    for (const auto* const key : {"lastTodTimecode", "lastUserTimecode", "remainingCapacity", "totalCapacity"})
        input.emplace_back(key, "");
    input.emplace_back("recordingStatus", "s");
    input.emplace_back("lastTimePoint", "bNisao");
    for (const auto* const key :
         {"remainingTime", "currentTimePointOnAir", "todTimecodeOnAir", "userTimecodeOnAir", "locationOnAir"})
        output.emplace_back(key, "");
    for (const auto* const key : {"playingStatus", "globalLoopMode"})
        output.emplace_back(key, "s");
    for (const auto* const key : {"speedOnAir", "sequence", "inBoundary", "outBoundary"})
        output.emplace_back(key, "o");
    CheckWrongTypes<MediaInput, JsonToMediaInputConverter, MediaInputToJsonConverter>(fullInput, input);
    CheckWrongTypes<MediaOutput, JsonToMediaOutputConverter, MediaOutputToJsonConverter>(fullOutput, output);
    CheckWrongTypes<SequenceOutput, JsonToSequenceOutputConverter, SequenceOutputToJsonConverter>(
        fullSequenceOutput,
        {{"sequenceOnAir", "o"}, {"assetBlockOnAir", "o"}, {"nextAssetBlockOnAir", "o"}, {"editMode", "b"}});
    CheckWrongTypes<MediaAsset, JsonToMediaAssetConverter, MediaAssetToJsonConverter>(
        fullAsset, {{"id", "s"}, {"name", "s"}, {"inPoint", "o"}, {"outPoint", "o"}});
}

TEST(Readers, AppendToWhatIsNoObjectChangesNothing)
{
    MediaInput input;
    MediaOutput output;
    Read<JsonToMediaIOConverter>(fullInput, input);
    Read<JsonToMediaIOConverter>(fullOutput, output);
    for (const auto* const text : {"null", "5", "\"text\"", "[]", "[{}]", "{}", R"({"_type":"Other"})"})
    {
        const auto json = Parse(text);
        EXPECT_TRUE(JsonToMediaIOConverter().Append(json, input));
        EXPECT_TRUE(JsonToMediaInputConverter().Append(json, input));
        EXPECT_TRUE(JsonToMediaOutputConverter().Append(json, output));
    }
    // The kinds' own Append leaves the common members alone, and the common one the kinds'.
    EXPECT_TRUE(JsonToMediaInputConverter().Append(Parse(R"({"id":"x","metadata":{"a.b":"x"}})"), input));
    EXPECT_TRUE(JsonToMediaOutputConverter().Append(Parse(R"({"id":"x","mediaAssetOnAir":{}})"), output));
    EXPECT_TRUE(JsonToMediaIOConverter().Append(Parse(R"({"recordingStatus":"Idle","lastTimePoint":5})"), input));
    EXPECT_EQ(Written<MediaIOToJsonConverter>(input), fullInput);
    EXPECT_EQ(Written<MediaIOToJsonConverter>(output), fullOutput);
}

} // namespace
} // namespace Qiv::Tests
