#pragma once

#include "Cases.h"

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

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

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

/// The names of documents.txt, which stand for documents with every member and for their parts.
inline const Names documents = []
{
    Names names;
    Lines("Converters/cases/documents.txt", names);
    return names;
}();
inline std::string Document(const std::string& name)
{
    return std::find_if(documents.begin(), documents.end(), [&](const auto& each) { return each.first == name; })
        ->second;
}
inline const auto fullAsset = Document("$ASSET"), fullAssetReference = Document("$REFERENCE"),
                  fullMetadata = Document("$METADATA"), fullInput = Document("$INPUT"),
                  fullOutput = Document("$OUTPUT"), fullSequenceOutput = Document("$SEQUENCE"),
                  fullNode = Document("$NODE");

} // namespace Qiv::Tests
