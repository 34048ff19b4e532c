#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

// Tables of what readers do, one input a line:
//
//     INPUT [!! MESSAGE] [>> AFTER]
//
// Without MESSAGE the reading succeeds. AFTER is the target's text afterwards, or what differs in it from before:
// OLD => NEW [;; OLD => NEW]...; without it the target is unchanged. A line with %<A|B|C> stands for one with each of
// them, which %% repeats; NEW may be NOTHING. Names such as $ASSET stand for the full documents' parts, $NOTEXT and its
// like for each value of another type.

namespace Qiv::Tests
{
namespace
{

std::vector<std::string> Split(const std::string& text, const std::string& separator)
{
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (auto end = text.find(separator); end != std::string::npos; end = text.find(separator, begin))
    {
        parts.push_back(text.substr(begin, end - begin));
        begin = end + separator.size();
    }
    parts.push_back(text.substr(begin));
    return parts;
}

std::vector<std::string> Expanded(const std::string& table)
{
    static const std::string scalars = "%<null|false|7|1.5|1e300|18446744073709551615|[]|[1]|";
    static const std::pair<const char*, std::string> names[] = {
        {"$COMMON", fullCommonMembers.substr(0, fullCommonMembers.find("\"mediaAssetOnAir"))},
        {"$REFERENCE", fullAssetReference},
        {"$ASSET", fullAsset},
        {"$SEQUENCE", fullSequenceOutput},
        {"$METADATA", fullMetadata},
        {"$NODE", fullNode},
        {"$BLOCK", R"({"_type":"AssetBlockOnAir","id":"b1","mediaAsset":)" + fullAssetReference + "}"},
        {"$NOBLOCK", R"({"_type":"AssetBlockOnAir","id":"","mediaAsset":{"_type":"MediaAssetRef","id":""}})"},
        {"$NOTEXT", scalars + R"({}|{"x":1}>)"},
        {"$NOOBJECT", scalars + R"("text">)"},
        {"$NEITHER", scalars + R"({}|{"x":1}|"text">)"}};
    std::vector<std::string> lines;
    for (auto line : Split(table, "\n"))
    {
        for (const auto& [name, text] : names)
            line = ReplacedAll(line, name, text);
        const auto begin = line.find("%<");
        if (begin == std::string::npos && !line.empty())
            lines.push_back(line);
        if (begin == std::string::npos)
            continue;
        const auto end = line.find('>', begin);
        for (const auto& choice : Split(line.substr(begin + 2, end - begin - 2), "|"))
        {
            const auto chosen =
                Expanded(line.substr(0, begin) + choice + ReplacedAll(line.substr(end + 1), "%%", choice));
            lines.insert(lines.end(), chosen.begin(), chosen.end());
        }
    }
    return lines;
}

std::string Edited(std::string text, const std::string& edits)
{
    if (edits.find(" => ") == std::string::npos)
        return edits.empty() ? text : edits;
    for (const auto& edit : Split(edits, " ;; "))
    {
        const auto sides = Split(edit, " => ");
        const auto position = text.find(sides[0]);
        EXPECT_TRUE(position != std::string::npos && text.find(sides[0], position + 1) == std::string::npos)
            << sides[0];
        text.replace(position, sides[0].size(), sides[1] == "NOTHING" ? "" : sides[1]);
    }
    return text;
}

/// Reads each line's input into a target that was read from `before` (a new one when it is empty).
template <typename Entity, typename Reader, typename Writer>
void Check(const std::string& before, const std::string& table)
{
    for (const auto& line : Expanded(table))
    {
        SCOPED_TRACE(typeid(Reader).name() + (" " + line));
        const auto sides = Split(line, " >> ");
        const auto reading = Split(sides[0], " !! ");
        const auto json = Parse(reading[0]);
        const std::string message = reading.size() == 2 ? reading[1] : "";
        const Reader reader;
        for (const bool asTemporary : {false, true})
        {
            Entity entity;
            if (!before.empty())
                Read<Reader>(before, entity);
            const auto unchanged = Written<Writer>(entity);
            auto temporary = json;
            const auto result = asTemporary ? reader.To(std::move(temporary), entity) : reader.To(json, entity);
            EXPECT_STREQ(result.ErrorMessage(), message.c_str());
            EXPECT_EQ(result, message.empty());
            EXPECT_EQ(Written<Writer>(entity), sides.size() == 2 ? Edited(unchanged, sides[1]) : unchanged);
            EXPECT_EQ(temporary, json);
            EXPECT_STREQ(reader.GetLastConversionError(), "");
        }
    }
}

const std::string empties = "\n%<null|[]|[{\"id\":\"x\"}]|5|\"text\"|true|{}> !! ";
const std::string others =
    "\n{\"_type\":\"%<Foo||a type>\",\"id\":\"x\",\"numerator\":9,\"lastTimePoint\":5} !! Invalid type %% : ";

TEST(JsonToTimePointConverter, ReadsWholeNumbersOf64Bits)
{
    Check<TimePoint, JsonToTimePointConverter, TimePointToJsonObjectConverter>(
        R"({"value":42})", empties + "TimePoint is empty" + others + "TimePoint expected" + R"TABLE(
{"value":%<""|" 1"|"1 "|"1.0"|"+-1"|"-"|"9223372036854775808"|9223372036854775808|1.5|null|true|[1]|{}>} !! Invalid TimePoint value
{"_type":"TimePoint"} !! Invalid TimePoint value
{"_type":"TimePoint","value":"%<0|99999999|100000000|-9223372036854775808|9223372036854775807>"} >> {"_type":"TimePoint","value":"%%"}
{"_type":5,"value":%<0|-9223372036854775808|9223372036854775807>} >> {"_type":"TimePoint","value":"%%"}
{"value":"+5","x":1} >> {"_type":"TimePoint","value":"5"}
)TABLE");
}

TEST(JsonToMediaAssetConverter, Merges)
{
    Check<MediaAsset, JsonToMediaAssetConverter, MediaAssetToJsonConverter>(
        fullAsset, empties + "MediaAsset is empty" + others + "MediaAsset expected" + R"TABLE(
$ASSET
{"_type":null,"%<id|name|inPoint|outPoint>":null}
{"name":"N","inPoint":{"value":"x"},"outPoint":{"value":1}} !! Invalid TimePoint value >> Goal => N
{"id":"a2","inPoint":{"value":8},"outPoint":{}} !! TimePoint is empty >> "a1" => "a2" ;; -1 => 8
{"%<id|name>":$NOTEXT}
{"%<inPoint|outPoint>":$NOOBJECT}
{"x":$NEITHER}
)TABLE");
    Check<Sequence, JsonToSequenceConverter, SequenceToJsonConverter>(
        R"({"id":"s1","name":"N"})", empties + "Sequence is empty" + others + "Sequence expected" + R"TABLE(
{"id":"s2","name":1} >> s1 => s2
{"id":null,"name":""} >> ,"name":"N" => NOTHING
)TABLE");
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
    for (const auto& before : {std::string(R"({"id":"old"})"), fullAssetReference})
    {
        Check<SharedReference<MediaAsset>, AssetReferenceReader, AssetReferenceWriter>(before,
                                                                                       empties + R"TABLE(Bad format
{%<|"_type":"MediaAssetRef",|"_type":5,>"id":"x"} >> {"_type":"MediaAssetRef","id":"x"}
{"id":""} >> {"_type":"MediaAssetRef","id":""}
{"id":%<7|true>} >> {"_type":"MediaAssetRef","id":"%%"}
{"id":%<[]|{}|null>} !! Bad format
{"_type":"MediaAssetRef",%<"id":{}|"id":"x","other":1|"id":null|"mediaAsset":"a1"|"id":"x","mediaAsset":"a1">} !! Bad format
{"id":"x",%<"other":1|"_type":null|"mediaAsset":null>} !! Bad format
{"_type":"%<Other||mediaassetref>","id":"x"} !! Bad _type
{%<|"id":"x",|"_type":"MediaAssetRef","id":"x",|"_type":5,>"mediaAsset":$ASSET} >> $REFERENCE
{"mediaAsset":{}} !! MediaAsset is empty
{"mediaAsset":{"id":"new","outPoint":{"value":"?"}}} !! Invalid TimePoint value
)TABLE");
    }
    const JsonToSharedReference<MediaAsset> withoutReader("MediaAssetRef", "mediaAsset", nullptr);
    SharedReference<MediaAsset> target;
    EXPECT_STREQ(withoutReader.To(Parse(fullAssetReference), target).ErrorMessage(), "Bad format");
}

TEST(JsonToSpeedConverter, MergesBothFields)
{
    Check<Speed, JsonToSpeedConverter, SpeedToJsonConverter>(
        R"({"numerator":1,"denominator":2})", empties + "Speed is empty" + others + "Speed expected" + R"TABLE(
{"_type":"speed","numerator":3} !! Invalid type speed : Speed expected
{"numerator":3} >> 1 => 3
{"denominator":4} >> 2 => 4
{"_type":5,"numerator":-2147483648,"denominator":-1} >> 1 => -2147483648 ;; 2} => -1}
{"numerator":3.0,"denominator":2147483647} >> 1 => 3 ;; 2} => 2147483647}
{"numerator":%<"1"|2147483648|-2147483649|null|2.5|true>,"denominator":%%,"x":0}
)TABLE");
    Speed read;
    Read<JsonToSpeedConverter>(R"({"denominator":-1})", read);
    EXPECT_EQ(read.Denominator(), 4294967295U);
}

TEST(JsonToBoundaryConverter, MakesTheKindThatTheTypeNames)
{
    for (const auto* const before :
         {"", R"({"_type":"BoundaryAbsolute","timepoint":{"value":1}})", R"({"_type":"BoundaryRelative"})"})
    {
        Check<std::unique_ptr<Boundary>, JsonToBoundaryConverter, BoundaryToJsonConverter>(
            before, empties + R"TABLE(Boundary is empty
{%<|"_type":null,|"_type":5,|"_type":"boundaryabsolute",|"_type":"Boundary",>"timepoint":{"value":1},"offset":1} !! Invalid _type
{"_type":"BoundaryAbsolute"%<|,"timepoint":null|,"origin":"Absolute","offset":3>} >> {"_type":"BoundaryAbsolute"}
{"_type":"BoundaryAbsolute","timepoint":{"value":7}} >> {"_type":"BoundaryAbsolute","timepoint":{"_type":"TimePoint","value":"7"}}
{"_type":"BoundaryAbsolute","timepoint":%<7|[]|{}|"7">} !! TimePoint is empty >> {"_type":"BoundaryAbsolute"}
{"_type":"BoundaryAbsolute","timepoint":{"value":"x"}} !! Invalid TimePoint value >> {"_type":"BoundaryAbsolute"}
{"_type":"BoundaryRelative"%<|,"offset":"5","origin":5|,"offset":2147483648,"origin":null|,"offset":1.5,"origin":"?"|,"origin":"">} >> {"_type":"BoundaryRelative","origin":"RelativeToCorrespondingMediaBoundary","offset":0}
{"_type":"BoundaryRelative","origin":"absolute","offset":1} >> {"_type":"BoundaryRelative","origin":"RelativeToCorrespondingMediaBoundary","offset":1}
{"_type":"BoundaryRelative","origin":"RelativeTo%<CorrespondingMedia|OppositeMedia|OppositeLoad>Boundary","offset":-2147483648} >> {"_type":"BoundaryRelative","origin":"RelativeTo%%Boundary","offset":-2147483648}
)TABLE");
    }
    std::unique_ptr<Boundary> boundary;
    const JsonToBoundaryConverter reader;
    EXPECT_STREQ(reader.Append(Parse("[]"), boundary).ErrorMessage(), "Invalid _type");
    EXPECT_TRUE(reader.AppendBoundaryRelative(Parse(R"({"_type":"BoundaryAbsolute","offset":4})"), boundary));
    EXPECT_EQ(boundary->Origin(), BoundaryOrigin::RelativeToCorrespondingMediaBoundary);
    EXPECT_TRUE(reader.AppendBoundaryAbsolute(Parse("5"), boundary));
    EXPECT_TRUE(boundary->IsEmpty());
}

TEST(JsonToSequenceOutputConverter, UpdatesMemberByMember)
{
    Check<SequenceOutput, JsonToSequenceOutputConverter, SequenceOutputToJsonConverter>(
        fullSequenceOutput, empties + "SequenceOutput is empty" + others + "SequenceOutput expected" + R"TABLE(
{"_type":"SequenceOutput"}
{"_type":5,"editMode":false} >> true => false
{"%<sequenceOnAir|assetBlockOnAir|nextAssetBlockOnAir>":null,"editMode":"false"}
{"nextAssetBlockOnAir":{"id":"b9","mediaAsset":5}} >> $NOBLOCK => {"_type":"AssetBlockOnAir","id":"b9","mediaAsset":{"_type":"MediaAssetRef","id":""}}
{"assetBlockOnAir":{}} >> $BLOCK => $NOBLOCK
{"sequenceOnAir":{"_type":"MediaAssetRef","id":"s2"},"editMode":false} !! Bad _type
{"sequenceOnAir":{"sequence":{"_type":"X"}},"editMode":false} !! Invalid type X : Sequence expected
{"sequenceOnAir":{"id":"s2"},"assetBlockOnAir":{"_type":"X"},"editMode":false} !! Invalid type X : AssetBlockOnAir expected >> "id":"s1","sequence":{"_type":"Sequence","id":"s1","name":"Highlights"} => "id":"s2"
{"assetBlockOnAir":{},"nextAssetBlockOnAir":{"id":"b8","mediaAsset":{}},"editMode":false} !! Bad format >> $BLOCK => $NOBLOCK
{"%<sequenceOnAir|assetBlockOnAir|nextAssetBlockOnAir>":$NOOBJECT}
{"editMode":%<null|7|1.5|1e300|18446744073709551615|[]|[1]|{}|{"x":1}|"text">}
{"x":$NEITHER}
)TABLE");
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
    Check<MetadataProfileDictionary, Reader, Writer>(fullMetadata, R"TABLE(
%<null|[]|["a.b"]|5|"a.b"|true|{}>
{"nodot":"x","a.b":%<5|null|[]|{}|true>}
{"qiv.peloperator%<.extra|X.k|.extra.k>":"x"}
{"a.b":"new","a.c":"added","qiv.pel.k":"y","a.b.":"e",".k":"root"} >> {".k":"root","a.b":"new","a.c":"added","a.b.":"e","a.b.c":"2","qiv.pel.k":"y","qiv.peloperator.serverId":1230,"qiv.peloperator.index":7,"z.":"\u0001"}
{"qiv.peloperator.serverId":20,"qiv.peloperator.index":"?"} >> 1230 => 20
{"qiv.peloperator.serverId":15,"qiv.peloperator.index":-1} >> ,"qiv.peloperator.index":7 => NOTHING
)TABLE");
    Check<MetadataProfileDictionary, Reader, Writer>("", R"TABLE(
{"a.b":"1","a.c":"2","d.e":"3"} >> {"a.b":"1","a.c":"2","d.e":"3"}
{"qiv.peloperator.index":0} >> {"qiv.peloperator.index":0}
{"qiv.peloperator.serverId":7}
)TABLE");

    // A profile of the wrong kind for its name throws; an entry without profile counts as absent.
    const FullyQualifiedName operatorName("qiv.peloperator");
    MetadataProfileDictionary dictionary;
    dictionary.Set(operatorName, nullptr);
    dictionary.Set(FullyQualifiedName("a"), nullptr);
    Read<Reader>(fullMetadata, dictionary);
    EXPECT_EQ(Written<Writer>(dictionary), fullMetadata);
    dictionary.Set(FullyQualifiedName("d"), std::make_shared<PelOperatorMetadataProfile>());
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
    Check<PelOperatorMetadataProfile, JsonToPelOperatorMetaDataConverter, OperatorWriter>(
        R"({"qiv.peloperator.serverId":10,"qiv.peloperator.index":1})",
        empties + R"TABLE(PelOperatorMetadataProfile is empty
{"qiv.peloperator.serverId":%<0|-10|15|7|"10"|null|10.5|2147483650|true>} !! PelOperatorMetadataProfile is empty
{"qiv.peloperator.serverId":%<0|-10|15|7|"10"|null|10.5>,"qiv.peloperator.index":3} >> index":1 => index":3
{"qiv.peloperator.serverId":1230} >> 10 => 1230
{"qiv.peloperator.serverId":20,"qiv.peloperator.index":"3"} >> 10 => 20
{"qiv.peloperator.index":-1} >> ,"qiv.peloperator.index":1 => NOTHING
{"qiv.peloperator.index":1.5} !! PelOperatorMetadataProfile is empty
)TABLE");
}

TEST(JsonToNodeConverter, ReplacesTheWholeNode)
{
    Check<Node, JsonToNodeConverter, NodeToJsonConverter>(fullNode,
                                                          empties + "Node is null" + others + "Node expected" + R"TABLE(
{%<|"id":null,|"id":5,>"hostName":"h"} !! Node has no identifier (required)
{"id":"n2"} >> {"_type":"Node","id":"n2"}
{"_type":5,"id":"","serialNumber":%<null|true|12.5|"12"|[]|{}|[5,null]|2147483648>,"gbeIpAddresses":%%} >> {"_type":"Node","id":""}
{"id":"","hostName":%<null|true|5|[]|{}>,"ipAddress":%%,"chassis":%%,"hardwareRevision":%%,"tarvonelVersion":%%} >> {"_type":"Node","id":""}
$NODE
{"id":"n2","gbeIpAddresses":["b",5,null,"a",["c"],""]} >> {"_type":"Node","id":"n2","gbeIpAddresses":["b","a",""]}
)TABLE");
}

// What goes right and wrong in the common members, by every way of reading, with what stays applied; after "_type".
const std::string commonRows = R"TABLE("x":1}
START,"id":"c2","name":"N","mediaAssetOnAir":{"_type":"Other","id":"x"},"metadata":{"a.b":"9"},"primaryTimecodeType":""} !! Bad _type >> $COMMON => "id":"c2","name":"N",
START,"id":"c2","name":"N","mediaAssetOnAir":{}} !! Bad format >> $COMMON => "id":"c2","name":"N",
START,"mediaAssetOnAir":{"mediaAsset":{"_type":"X"}}} !! Invalid type X : MediaAsset expected
START,"mediaAssetOnAir":{"id":"a2"}} >> "mediaAssetOnAir":$REFERENCE => "mediaAssetOnAir":{"_type":"MediaAssetRef","id":"a2"}
START,"mediaAssetOnAir":{"id":""},"id":"","name":""} >> $COMMON"mediaAssetOnAir":$REFERENCE, => NOTHING
START,"metadata":{"qiv.peloperator.serverId":5,"a.b":"9"}} >> "a.b":"1" => "a.b":"9"
)TABLE";

std::string CommonRows(const std::string& type)
{
    return ReplacedAll("\nSTART," + commonRows, "START", "{\"_type\":\"" + type + "\"");
}

TEST(JsonToMediaIOConverter, DispatchesOnTheType)
{
    const auto rows = empties + R"TABLE(MediaIO is empty
{%<|"_type":null,|"_type":5,|"_type":["MediaInput"],>"name":"A"} !! Invalid JSON type (undefined)
{"_type":"%<Recorder|mediainput||MediaIO>","name":"A"} !! Invalid JSON type ('%%') : 'MediaInput' or 'MediaOutput' expected
)TABLE";
    Check<MediaInput, JsonToMediaIOConverter, MediaIOToJsonConverter>(fullInput,
                                                                      rows + CommonRows("MediaInput") + R"TABLE(
{"_type":"MediaOutput","name":"Cam A"} !! Inconsistent types - cannot merge JSON-MediaOutput source with MediaInput destination.
{"_type":"MediaInput"}
{"_type":"MediaInput","id":"c2","recordingStatus":"Idle","lastTimePoint":0} !! TimePoint is empty >> "c1" => "c2" ;; Recording" => Idle"
)TABLE");
    Check<MediaOutput, JsonToMediaIOConverter, MediaIOToJsonConverter>(fullOutput,
                                                                       rows + CommonRows("MediaOutput") + R"TABLE(
{"_type":"MediaInput","name":"Cam A"} !! Inconsistent types - cannot merge JSON-MediaInput source with MediaOutput destination.
{"_type":"MediaOutput"}
{"_type":"MediaOutput","id":"c2","speedOnAir":{}} !! Speed is empty >> "c1" => "c2"
)TABLE");
}

TEST(JsonToMediaInputConverter, AppliesMembersInOrder)
{
    Check<MediaInput, JsonToMediaInputConverter, MediaInputToJsonConverter>(
        fullInput,
        empties + "MediaInput is empty" + others + "MediaInput expected" + CommonRows("MediaInput") + R"TABLE(
{"_type":"MediaOutput","id":"x"} !! Invalid type MediaOutput : MediaInput expected
{"_type":5,"recordingStatus":"Pause"} >> Recording" => Pause"
{"recordingStatus":"recording"} >> Recording" => Idle"
{"recordingStatus":"Pause","lastTimePoint":%<5|true|"5"|[]|[1]|{}|1.5>,"primaryTimecodeType":"Tod"} !! TimePoint is empty >> Recording" => Pause"
{"lastTimePoint":{"_type":"X","value":1}} !! Invalid type X : TimePoint expected
{"lastTimePoint":{"value":"1x"},"totalCapacity":{"_type":"Duration","value":"0"}} !! Invalid TimePoint value
{"lastTimePoint":{"value":7},"primaryTimecodeType":"?"} >> 1458569109680000000 => 7 ;; "primaryTimecodeType":"User", => NOTHING
{"lastTodTimecode":"10:00:00:00@25"} >> 2016-03-21T14:05:09:17@25 => -1-0-1-0-1T10:00:00:00@25
{"lastUserTimecode":"1900-01-01T00:00:00:00@50"} >> "lastUserTimecode":"2016-03-21T00:10:00;00@30", => NOTHING
{"last%<Tod|User>Timecode":"2016-02-30T00:00:00:00@25"}
{"lastTodTimecode":"%<10:00:00:00|24:00:00:00@25|00:00:00:00@99999999999|-1-0-1-0-1T10:00:00:00@25| 10:00:00:00@25||00:01:00;00@30>"}
{"remainingCapacity":{"_type":"Duration","value":"+10"},"totalCapacity":{"_type":"Duration","value":"4"}} >> "3600000000000" => "4" ;; "7200000000000" => "4"
{"remainingCapacity":{"_type":"Duration","value":"8000000000000"}} >> "3600000000000" => "8000000000000" ;; "7200000000000" => "8000000000000"
{"totalCapacity":{"_type":"Duration","value":"-5"}} >> ,"remainingCapacity":{"_type":"Duration","value":"3600000000000"},"totalCapacity":{"_type":"Duration","value":"7200000000000"} => NOTHING
{"remainingCapacity":{"_type":"Duration","value":"-5"}} >> 3600000000000 => -5
{"remainingCapacity":%<{"value":"5"}|{"_type":5,"value":"5"}|{"_type":"duration","value":"5"}|{"_type":"Duration"}|{"_type":"Duration","value":5}|{"_type":"Duration","value":"5s"}|{"_type":"Duration","value":""}>,"totalCapacity":%%}
{"%<id|name|recordingStatus|primaryTimecodeType>":$NOTEXT}
{"mediaAssetOnAir":$NOOBJECT}
{"%<metadata|lastTodTimecode|lastUserTimecode|remainingCapacity|totalCapacity>":$NEITHER}
)TABLE");
}

TEST(JsonToMediaOutputConverter, AppliesMembersInOrder)
{
    Check<MediaOutput, JsonToMediaOutputConverter, MediaOutputToJsonConverter>(
        fullOutput,
        empties + "MediaOutput is empty" + others + "MediaOutput expected" + CommonRows("MediaOutput") + R"TABLE(
{"_type":"MediaInput","id":"x"} !! Invalid type MediaInput : MediaOutput expected
{"playingStatus":"?","globalLoopMode":"?","locationOnAir":{"x":1}} >> "Playing" => "Idle" ;; "globalLoopMode":"Bounce", => NOTHING
{"playingStatus":"Cueing","speedOnAir":{},"globalLoopMode":"None"} !! Speed is empty >> "Playing" => "Cueing"
{"speedOnAir":{"_type":"Boundary","numerator":1}} !! Invalid type Boundary : Speed expected
{"speedOnAir":{"_type":"Speed","numerator":1}} >> "speedOnAir":{"_type":"Speed","numerator":-3,"denominator":2}, => NOTHING
{"speedOnAir":{"denominator":4}} >> -3,"denominator":2 => 0,"denominator":4
{"speedOnAir":{"numerator":1,"denominator":4},"globalLoopMode":"Loop","remainingTime":{"_type":"Duration","value":"7"},"sequence":{},"currentTimePointOnAir":{"_type":"TimePoint","value":9}} !! SequenceOutput is empty >> -3,"denominator":2 => 1,"denominator":4 ;; Bounce => Loop ;; -40000000 => 7
{"sequence":{"editMode":false}} >> $SEQUENCE => {"_type":"SequenceOutput","assetBlockOnAir":$NOBLOCK,"editMode":false}
{"primaryTimecodeType":"User","inBoundary":{},"outBoundary":{"_type":"BoundaryAbsolute"}} !! Boundary is empty >> "Tod" => "User"
{"inBoundary":{"_type":"BoundaryAbsolute","timepoint":5}} !! TimePoint is empty
{"inBoundary":{"_type":"BoundaryAbsolute"},"outBoundary":{"_type":"X"}} !! Invalid _type >> "inBoundary":{"_type":"BoundaryAbsolute","timepoint":{"_type":"TimePoint","value":"5"}}, => NOTHING
{"outBoundary":{"_type":"BoundaryAbsolute"}} >> ,"outBoundary":{"_type":"BoundaryRelative","origin":"RelativeToOppositeLoadBoundary","offset":-25} => NOTHING
{"remainingTime":{"_type":"Duration","value":"x"},"todTimecodeOnAir":"2100-02-29T00:00:00:00@25","userTimecodeOnAir":"00:00:00:00@4294967296"}
{"todTimecodeOnAir":"2016-03-21T14:05:09:18@25","userTimecodeOnAir":"2016-03-21T14:05:09:19@25"} >> 09:17@25 => 09:18@25 ;; 1900-01-01T00:00:00:01@50 => 2016-03-21T14:05:09:19@25
{"currentTimePointOnAir":{"_type":"TimePoint","value":%<123|"123"|"123abc"|" \t+123 "|"0123"|"123.9">}} >> "value":"0" => "value":"123"
{"currentTimePointOnAir":{"_type":"TimePoint","value":"%<-7|-9223372036854775808|9223372036854775807>"}} >> "value":"0" => "value":"%%"
{"currentTimePointOnAir":{"_type":"TimePoint","value":%<-7|-9223372036854775808|9223372036854775807>}} >> "value":"0" => "value":"%%"
{"currentTimePointOnAir":{"_type":"TimePoint","value":-9223372036854775807}} >> "currentTimePointOnAir":{"_type":"TimePoint","value":"0"}, => NOTHING
{"currentTimePointOnAir":%<{"value":1}|{"_type":5,"value":1}|{"_type":"Timepoint","value":"1"}|{"_type":"TimePoint"}|{"_type":"TimePoint","value":9223372036854775808}|{}>}
{"%<id|name|playingStatus|globalLoopMode|primaryTimecodeType>":$NOTEXT}
{"%<mediaAssetOnAir|speedOnAir|sequence|inBoundary|outBoundary>":$NOOBJECT}
{"%<metadata|remainingTime|currentTimePointOnAir|todTimecodeOnAir|userTimecodeOnAir|locationOnAir>":$NEITHER}
)TABLE");
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
