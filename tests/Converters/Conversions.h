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
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
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

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

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

/// Writes what belongs into an object as one.
struct OperatorWriter : PelOperatorMetadataProfileToJsonConverter
{
    using PelOperatorMetadataProfileToJsonConverter::To;
    Result To(const PelOperatorMetadataProfile& profile, Stringer& stringer) const override
    {
        const auto object = stringer.ObjectScope();
        return PelOperatorMetadataProfileToJsonConverter::To(profile, stringer);
    }
};

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

/// A reader and a writer of an entity, by the name that they have in cases.
template <typename Entity_, typename Reader_ = ReaderOf<Entity_>, typename Writer_ = WriterOf<Entity_>>
struct Conversion
{
    using Entity = Entity_;
    using Reader = Reader_;
    using Writer = Writer_;
    std::string name;
    Reader reader = {};
    Writer writer = {};
};

/// Calls `use` with each conversion that a case names: that of its entity, or those in the list `converters`, of which
/// "MediaIO" is that of channels of both kinds.
template <typename Use>
void ForEachConversion(const Case& each, const std::string& converters, const Use& use)
{
    const auto entity = each.JsonText("entity");
    for (const auto& converter : each.Has(converters) ? each.List(converters) : std::vector{entity})
    {
        const auto name = Parse(entity).asString() + (converter == entity ? "" : " by " + Parse(converter).asString());
        const auto useIfNamed = [&](const auto& conversion)
        { return conversion.name == name && (use(conversion), true); };
        const std::string reference = "MediaAssetRef", asset = "mediaAsset";
        const bool isKnown =
            useIfNamed(Conversion<TimePoint>{"TimePoint"}) || useIfNamed(Conversion<MediaAsset>{"MediaAsset"}) ||
            useIfNamed(Conversion<Sequence>{"Sequence"}) || useIfNamed(Conversion<Speed>{"Speed"}) ||
            useIfNamed(Conversion<std::unique_ptr<Boundary>>{"Boundary"}) ||
            useIfNamed(Conversion<SequenceOutput>{"SequenceOutput"}) ||
            useIfNamed(Conversion<MetadataProfileDictionary>{"Metadata"}) || useIfNamed(Conversion<Node>{"Node"}) ||
            useIfNamed(Conversion<PelOperatorMetadataProfile, JsonToPelOperatorMetaDataConverter, OperatorWriter>{
                "Operator"}) ||
            useIfNamed(Conversion<SharedReference<MediaAsset>, JsonToSharedReference<MediaAsset>,
                                  SharedReferenceToJson<MediaAsset, false>>{
                "MediaAssetReference",
                {reference, asset, std::make_shared<JsonToMediaAssetConverter>()},
                {reference, asset, std::make_shared<MediaAssetToJsonConverter>()}}) ||
            useIfNamed(Conversion<MediaInput, JsonToMediaInputConverter, MediaInputToJsonConverter>{"MediaInput"}) ||
            useIfNamed(
                Conversion<MediaOutput, JsonToMediaOutputConverter, MediaOutputToJsonConverter>{"MediaOutput"}) ||
            useIfNamed(Conversion<MediaInput>{"MediaInput by MediaIO"}) ||
            useIfNamed(Conversion<MediaOutput>{"MediaOutput by MediaIO"});
        EXPECT_TRUE(isKnown) << name;
    }
}

inline const auto fullInput = Document("/recorder"), fullOutput = Document("/player"), fullNode = Document("/node"),
                  fullAssetReference = Document("/recorder/mediaAssetOnAir"),
                  fullAsset = Document("/recorder/mediaAssetOnAir/mediaAsset"),
                  fullMetadata = Document("/recorder/metadata"), fullSequenceOutput = Document("/player/sequence");

} // namespace Qiv::Tests
