#pragma once

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/JsonToSequenceConverter.h>
#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/SequenceToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToMediaAssetConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToSharedReference.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToTimePointConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/SharedReferenceToJson.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/BoundaryToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToBoundaryConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaIOConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaInputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaOutputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMetadataProfileDictionaryConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToPelOperatorMetaDataConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSequenceOutputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSpeedConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaInputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MetadataProfileDictionaryToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/PelOperatorMetadataProfileToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SequenceOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SpeedToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/JsonToNodeConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>

#include <json/reader.h>

#include <memory>
#include <stdexcept>
#include <string>

/// What the tests of the converters share: strict parsing, writing in one line, and full documents.
namespace Qiv::Tests
{

using namespace BusinessEntityModel::BaseTypes;
using namespace DataModel::MediaAssets;
using namespace DataModel::Tarvonel::MediaIOs;
using namespace DataModel::Tarvonel::Nodes;
using namespace DataModel::Tarvonel::Serialization::MediaIOs::Json;
using namespace DataModel::Tarvonel::Serialization::Nodes::Json;
using namespace BusinessEntityModel::Edits::Serialization::Json;
using namespace DataModel::MediaAssets::Serialization::Json;
using BusinessEntityModel::Edits::Sequence;
using TimePoints::Duration;
using TimePoints::TimeCode;
using TimePoints::TimePoint;

/// Parses one JSON text, strictly; throws otherwise.
inline JsonObject Parse(const std::string& text)
{
    ::Json::CharReaderBuilder builder;
    ::Json::CharReaderBuilder::strictMode(&builder.settings_);
    builder["strictRoot"] = false;
    JsonObject json;
    std::string errors;
    const std::unique_ptr<::Json::CharReader> reader(builder.newCharReader());
    if (!reader->parse(text.data(), text.data() + text.size(), &json, &errors))
        throw std::runtime_error(errors + text);
    return json;
}

/// The text that a writer makes of an entity; a failure stands behind it.
template <typename Writer, typename Entity>
std::string Written(const Entity& entity, const Writer& writer = Writer())
{
    Stringer stringer;
    const auto result = writer.To(entity, stringer);
    return stringer.ToString() + (result ? "" : std::string(" | ") + result.ErrorMessage());
}
template <typename Writer>
std::string Written(const std::unique_ptr<Boundary>& boundary)
{
    return boundary == nullptr ? "null" : Written<Writer>(*boundary);
}

/// Reads a text into an entity that must take it.
template <typename Reader, typename Entity>
void Read(const std::string& text, Entity& entity)
{
    if (const auto result = Reader().To(Parse(text), entity); !result)
        throw std::runtime_error(result.ErrorMessage());
}

template <typename Reader, typename Entity>
Entity FromText(const std::string& text)
{
    Entity entity{};
    Read<Reader>(text, entity);
    return entity;
}

inline std::string ReplacedAll(std::string text, const std::string& from, const std::string& to)
{
    for (auto position = text.find(from); position != std::string::npos;
         position = text.find(from, position + to.size()))
        text.replace(position, from.size(), to);
    return text;
}

// Documents with every member, as their writers write them.

inline const std::string fullAsset =
    R"({"_type":"MediaAsset","id":"a1","name":"Goal","inPoint":{"_type":"TimePoint","value":"-1"},)"
    R"("outPoint":{"_type":"TimePoint","value":"9223372036854775807"}})";
inline const std::string fullAssetReference = R"({"_type":"MediaAssetRef","id":"a1","mediaAsset":)" + fullAsset + "}";
inline const std::string fullMetadata =
    R"({"a.b":"1","a.b.c":"2","qiv.peloperator.serverId":1230,"qiv.peloperator.index":7,"z.":"\u0001"})";
inline const std::string fullCommonMembers = R"("id":"c1","name":"Cam \"A\" )"
                                             "\xC3\xA9"
                                             R"(","mediaAssetOnAir":)" +
                                             fullAssetReference + R"(,"metadata":)" + fullMetadata;
inline const std::string fullInput =
    R"({"_type":"MediaInput",)" + fullCommonMembers +
    R"(,"recordingStatus":"Recording","lastTimePoint":{"_type":"TimePoint","value":"1458569109680000000"},)"
    R"("lastTodTimecode":"2016-03-21T14:05:09:17@25","lastUserTimecode":"2016-03-21T00:10:00;00@30",)"
    R"("primaryTimecodeType":"User","remainingCapacity":{"_type":"Duration","value":"3600000000000"},)"
    R"("totalCapacity":{"_type":"Duration","value":"7200000000000"}})";
inline const std::string fullSequenceOutput =
    R"({"_type":"SequenceOutput","sequenceOnAir":{"_type":"SequenceRef","id":"s1","sequence":)"
    R"({"_type":"Sequence","id":"s1","name":"Highlights"}},)"
    R"("assetBlockOnAir":{"_type":"AssetBlockOnAir","id":"b1","mediaAsset":)" +
    fullAssetReference +
    R"(},"nextAssetBlockOnAir":{"_type":"AssetBlockOnAir","id":"","mediaAsset":{"_type":"MediaAssetRef","id":""}},)"
    R"("editMode":true})";
inline const std::string fullOutput =
    R"({"_type":"MediaOutput",)" + fullCommonMembers +
    R"(,"playingStatus":"Playing","speedOnAir":{"_type":"Speed","numerator":-3,"denominator":2},)"
    R"("globalLoopMode":"Bounce","remainingTime":{"_type":"Duration","value":"-40000000"},)"
    R"("currentTimePointOnAir":{"_type":"TimePoint","value":"0"},"todTimecodeOnAir":"2016-03-21T14:05:09:17@25",)"
    R"("userTimecodeOnAir":"1900-01-01T00:00:00:01@50","primaryTimecodeType":"Tod","sequence":)" +
    fullSequenceOutput +
    R"(,"inBoundary":{"_type":"BoundaryAbsolute","timepoint":{"_type":"TimePoint","value":"5"}},)"
    R"("outBoundary":{"_type":"BoundaryRelative","origin":"RelativeToOppositeLoadBoundary","offset":-25}})";
inline const std::string fullNode =
    R"({"_type":"Node","id":"n1","serialNumber":-2,"hostName":"srv","ipAddress":"10.0.0.1",)"
    R"("gbeIpAddresses":["10.0.1.2","10.0.1.1"],"chassis":"6U","hardwareRevision":"B2","tarvonelVersion":"1.2.3"})";

} // namespace Qiv::Tests
