#pragma once

#include "CaseFiles.h"

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

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

/// What the tests of the converters share: reading and writing in one line, what cases say, and full documents.
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

/// The reader and the writer of an entity.
std::pair<JsonToTimePointConverter, TimePointToJsonObjectConverter> ConvertersOf(const TimePoint&);
std::pair<JsonToMediaAssetConverter, MediaAssetToJsonConverter> ConvertersOf(const MediaAsset&);
std::pair<JsonToSequenceConverter, SequenceToJsonConverter> ConvertersOf(const Sequence&);
std::pair<JsonToSpeedConverter, SpeedToJsonConverter> ConvertersOf(const Speed&);
std::pair<JsonToBoundaryConverter, BoundaryToJsonConverter> ConvertersOf(const Boundary&);
std::pair<JsonToBoundaryConverter, BoundaryToJsonConverter> ConvertersOf(const std::unique_ptr<Boundary>&);
std::pair<JsonToSequenceOutputConverter, SequenceOutputToJsonConverter> ConvertersOf(const SequenceOutput&);
std::pair<JsonToMetadataProfileDictionaryConverter, MetadataProfileDictionaryToJsonConverter>
ConvertersOf(const MetadataProfileDictionary&);
std::pair<JsonToNodeConverter, NodeToJsonConverter> ConvertersOf(const Node&);
std::pair<JsonToMediaIOConverter, MediaIOToJsonConverter> ConvertersOf(const MediaIO&);
template <typename Entity>
using ReaderOf = typename decltype(ConvertersOf(std::declval<const Entity&>()))::first_type;
template <typename Entity>
using WriterOf = typename decltype(ConvertersOf(std::declval<const Entity&>()))::second_type;

/// The text that a writer makes of an entity; a failure stands behind it.
template <typename Entity, typename Writer = WriterOf<Entity>>
std::string Written(const Entity& entity, const Writer& writer = Writer())
{
    Stringer stringer;
    const auto result = writer.To(entity, stringer);
    return stringer.ToString() + (result ? "" : std::string(" | ") + result.ErrorMessage());
}
inline std::string Written(const std::unique_ptr<Boundary>& boundary, const BoundaryToJsonConverter& writer = {})
{
    return boundary == nullptr ? "null" : Written(*boundary, writer);
}

/// Reads a text into an entity that must take it.
template <typename Entity, typename Reader = ReaderOf<Entity>>
void Read(const std::string& text, Entity& entity, const Reader& reader = Reader())
{
    if (const auto result = reader.To(Parse(text), entity); !result)
        throw std::runtime_error(result.ErrorMessage());
}
template <typename Entity>
Entity FromText(const std::string& text)
{
    Entity entity{};
    Read(text, entity);
    return entity;
}

/// What is written after a case, of what was written as `before`: "after" is "unchanged", "the document" or a document,
/// or "changes" is an RFC 7396 merge patch.
inline void Patch(JsonObject& target, const JsonObject& patch)
{
    if (!patch.isObject())
        target = patch;
    else
        for (const auto& name : patch.getMemberNames())
            if (patch[name].isNull())
                target.removeMember(name);
            else
                Patch(target[name], patch[name]);
}
inline JsonObject After(const Case& each, const std::string& before, const std::string& document = "null")
{
    auto after = Parse(before);
    if (each.Has("changes"))
        Patch(after, each["changes"]);
    else if (const auto text = each.JsonText("after"); text == "\"the document\"")
        after = Parse(document);
    else if (text != "\"unchanged\"")
        after = Parse(Followed(text));
    return after;
}

/// Runs the checks of the converters that a case names: that of its entity, or those in the list `converters`, of which
/// "MediaIO" is that of channels of both kinds.
inline void EachConverter(const Case& each, const std::string& converters, const std::map<std::string, Check>& checks)
{
    const auto entity = each.Text("entity");
    if (!each.Has(converters))
        checks.at(entity)(each);
    for (const auto& name : each.List(converters))
        checks.at(Parse(name) == entity ? entity : entity + " by " + Parse(name).asString())(each);
}

inline const auto fullInput = Document("/recorder"), fullOutput = Document("/player"), fullNode = Document("/node"),
                  fullAssetReference = Document("/recorder/mediaAssetOnAir"),
                  fullAsset = Document("/recorder/mediaAssetOnAir/mediaAsset"),
                  fullMetadata = Document("/recorder/metadata"), fullSequenceOutput = Document("/player/sequence");

} // namespace Qiv::Tests
