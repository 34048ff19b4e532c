#include "Peers.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace Bench
{

using namespace Qiv::BusinessEntityModel::BaseTypes;
using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using namespace Qiv::TimePoints;
using Qiv::BusinessEntityModel::Edits::Sequence;
using Qiv::DataModel::MediaAssets::MediaAsset;
using Qiv::DataModel::MediaAssets::ToTimecodePrimary;

// -- Document trees, for writing

namespace
{

template <typename Tree>
Tree NanosecondsTree(const char* type, std::int64_t nanoseconds)
{
    Tree tree;
    tree["_type"] = type;
    tree["value"] = std::to_string(nanoseconds);
    return tree;
}

template <typename Tree>
Tree MediaInputTree(const MediaInput& channel)
{
    const QivTimeCodeFormatter formatter;
    Tree tree;
    tree["_type"] = "MediaInput";
    tree["id"] = channel.Id().Value();
    tree["name"] = static_cast<const std::string&>(channel.Name());
    auto& reference = tree["mediaAssetOnAir"];
    reference["_type"] = "MediaAssetRef";
    reference["id"] = channel.MediaAssetOnAir().Id().Value();
    if (const auto& asset = channel.MediaAssetOnAir().Pointer())
    {
        auto& embedded = reference["mediaAsset"];
        embedded["_type"] = "MediaAsset";
        embedded["id"] = asset->Id().Value();
        embedded["name"] = static_cast<const std::string&>(asset->Name());
        embedded["inPoint"] = NanosecondsTree<Tree>("TimePoint", asset->InPoint().Nanoseconds());
        embedded["outPoint"] = NanosecondsTree<Tree>("TimePoint", asset->OutPoint().Nanoseconds());
    }
    auto& metadata = tree["metadata"];
    for (const auto& profile : channel.Metadata().Values())
    {
        if (const auto* generic = dynamic_cast<const GenericMetadataProfile*>(profile.get()))
        {
            generic->Iterate(
                [&](const std::string& key, const std::string& value)
                {
                    metadata[generic->FullyQualifiedName().Value() + "." + key] = value;
                    return true;
                });
        }
        else if (const auto* pel = dynamic_cast<const PelOperatorMetadataProfile*>(profile.get()))
        {
            metadata["qiv.peloperator.serverId"] = pel->ServerId();
            metadata["qiv.peloperator.index"] = pel->Index();
        }
    }
    tree["recordingStatus"] = ToString(channel.RecordingStatus());
    tree["lastTimePoint"] = NanosecondsTree<Tree>("TimePoint", channel.LastTimePoint().Nanoseconds());
    tree["lastTodTimecode"] = formatter.Format(channel.LastTodTimecode());
    tree["lastUserTimecode"] = formatter.Format(channel.LastUserTimecode());
    tree["primaryTimecodeType"] = ToString(channel.PrimaryTimecodeType());
    tree["remainingCapacity"] = NanosecondsTree<Tree>("Duration", channel.RemainingCapacity().Nanoseconds());
    tree["totalCapacity"] = NanosecondsTree<Tree>("Duration", channel.TotalCapacity().Nanoseconds());
    return tree;
}

} // namespace

nlohmann::ordered_json ToNlohmann(const MediaInput& channel)
{
    return MediaInputTree<nlohmann::ordered_json>(channel);
}

Json::Value ToJsoncpp(const MediaInput& channel)
{
    return MediaInputTree<Json::Value>(channel);
}

// -- Reading from jsoncpp's tree: one plain look-up of each member

namespace
{

// The member of a tree, or null.
const Json::Value* Find(const Json::Value& json, const char* key)
{
    const auto& member = json[key];
    return member.isNull() ? nullptr : &member;
}

template <typename Apply>
void IfText(const Json::Value& json, const char* key, Apply apply)
{
    if (const auto* member = Find(json, key); member != nullptr && member->isString())
        apply(member->asString());
}

template <typename Apply>
void IfObject(const Json::Value& json, const char* key, Apply apply)
{
    if (const auto* member = Find(json, key); member != nullptr && member->isObject())
        apply(*member);
}

bool IsOfType(const Json::Value& json, const char* type)
{
    bool isOfType = false;
    IfText(json, "_type", [&](const std::string& found) { isOfType = found == type; });
    return isOfType;
}

// Also skips an object of another type.
template <typename Apply>
void IfObjectOf(const char* type, const Json::Value& json, const char* key, Apply apply)
{
    IfObject(json, key,
             [&](const Json::Value& object)
             {
                 if (IsOfType(object, type))
                     apply(object);
             });
}

template <typename Apply>
void IfTimeCode(const Json::Value& json, const char* key, Apply apply)
{
    IfText(json, key,
           [&](const std::string& text)
           {
               TimeCode timeCode;
               if (QivTimeCodeParser::TryRead(text, timeCode))
                   apply(timeCode);
           });
}

template <typename Apply>
void IfNanoseconds(const Json::Value& json, const char* key, const char* type, Apply apply)
{
    IfObjectOf(type, json, key,
               [&](const Json::Value& object)
               {
                   IfText(object, "value",
                          [&](const std::string& value)
                          {
                              Duration duration;
                              if (QivDurationParser::TryRead(value, duration))
                                  apply(duration);
                          });
               });
}

template <typename Apply>
void IfTimePoint(const Json::Value& json, const char* key, Apply apply)
{
    IfNanoseconds(json, key, "TimePoint", [&](Duration value) { apply(TimePoint(value.Nanoseconds())); });
}

template <typename Apply>
void IfAssetReference(const Json::Value& json, const char* key, Apply apply)
{
    IfObjectOf("MediaAssetRef", json, key,
               [&](const Json::Value& reference)
               {
                   SharedReference<MediaAsset> result;
                   IfText(reference, "id", [&](std::string id) { result = Identifier(std::move(id)); });
                   IfObjectOf("MediaAsset", reference, "mediaAsset",
                              [&](const Json::Value& object)
                              {
                                  auto asset = std::make_shared<MediaAsset>();
                                  IfText(object, "id", [&](std::string id) { asset->Id(Identifier(std::move(id))); });
                                  IfText(object, "name",
                                         [&](std::string name) { asset->Name(Utf8String(std::move(name))); });
                                  IfTimePoint(object, "inPoint", [&](TimePoint point) { asset->InPoint(point); });
                                  IfTimePoint(object, "outPoint", [&](TimePoint point) { asset->OutPoint(point); });
                                  result = asset;
                              });
                   apply(std::move(result));
               });
}

void SetMetadata(MediaIO& channel, const std::string& name, const std::string& value)
{
    const auto dot = name.rfind('.');
    if (dot == std::string::npos)
        return;
    const FullyQualifiedName profileName(name.substr(0, dot));
    if (!channel.Metadata().Contains(profileName))
        channel.Metadata().Set(std::make_shared<GenericMetadataProfile>(profileName));
    dynamic_cast<GenericMetadataProfile&>(channel.Metadata().At(profileName))
        .Assign(std::string_view(name).substr(dot + 1), value);
}

void ReadGenericProfiles(const Json::Value& metadata, MediaIO& channel)
{
    for (auto member = metadata.begin(); member != metadata.end(); ++member)
        if (member->isString())
            SetMetadata(channel, member.name(), member->asString());
}

void ReadCommon(const Json::Value& json, MediaIO& channel)
{
    IfText(json, "id", [&](std::string id) { channel.Id(Identifier(std::move(id))); });
    IfText(json, "name", [&](std::string name) { channel.Name(Utf8String(std::move(name))); });
    IfAssetReference(json, "mediaAssetOnAir",
                     [&](SharedReference<MediaAsset> reference) { channel.MediaAssetOnAir(std::move(reference)); });
    IfObject(json, "metadata",
             [&](const Json::Value& metadata)
             {
                 PelOperatorMetadataProfile profile;
                 const auto* serverId = Find(metadata, "qiv.peloperator.serverId");
                 const auto* index = Find(metadata, "qiv.peloperator.index");
                 if (serverId != nullptr && serverId->isInt())
                     profile.ServerId(serverId->asInt());
                 if (index != nullptr && index->isInt())
                     profile.Index(index->asInt());
                 if (serverId != nullptr || index != nullptr)
                     channel.Metadata().Set(std::make_shared<PelOperatorMetadataProfile>(profile));
                 ReadGenericProfiles(metadata, channel);
             });
}

} // namespace

void Read(const Json::Value& json, MediaInput& channel)
{
    if (!IsOfType(json, "MediaInput"))
        return;
    ReadCommon(json, channel);
    IfText(json, "recordingStatus", [&](const std::string& text) { channel.RecordingStatus(ToRecordingStatus(text)); });
    IfTimePoint(json, "lastTimePoint", [&](TimePoint point) { channel.LastTimePoint(point); });
    IfTimeCode(json, "lastTodTimecode", [&](const TimeCode& timeCode) { channel.LastTodTimecode(timeCode); });
    IfTimeCode(json, "lastUserTimecode", [&](const TimeCode& timeCode) { channel.LastUserTimecode(timeCode); });
    IfText(json, "primaryTimecodeType",
           [&](const std::string& text) { channel.PrimaryTimecodeType(ToTimecodePrimary(text)); });
    IfNanoseconds(json, "remainingCapacity", "Duration", [&](Duration value) { channel.RemainingCapacity(value); });
    IfNanoseconds(json, "totalCapacity", "Duration", [&](Duration value) { channel.TotalCapacity(value); });
}

namespace
{

SequenceOutput::AssetBlockOutput BlockOf(const Json::Value& json)
{
    SequenceOutput::AssetBlockOutput block;
    IfText(json, "id", [&](std::string id) { block.Id(Identifier(std::move(id))); });
    IfAssetReference(json, "mediaAsset",
                     [&](SharedReference<MediaAsset> reference) { block.MediaAssetRef(std::move(reference)); });
    return block;
}

std::unique_ptr<Boundary> BoundaryOf(const Json::Value& json)
{
    std::unique_ptr<Boundary> boundary;
    IfText(json, "_type",
           [&](const std::string& type)
           {
               if (type == "BoundaryAbsolute")
               {
                   auto absolute = std::make_unique<BoundaryAbsolute>();
                   IfTimePoint(json, "timepoint", [&](TimePoint point) { absolute->Timepoint(point); });
                   boundary = std::move(absolute);
               }
               else if (type == "BoundaryRelative")
               {
                   auto relative = std::make_unique<BoundaryRelative>();
                   IfText(json, "origin", [&](const std::string& text) { relative->Origin(ToBoundaryOrigin(text)); });
                   if (const auto* offset = Find(json, "offset"); offset != nullptr && offset->isInt())
                       relative->Offset(offset->asInt());
                   boundary = std::move(relative);
               }
           });
    return boundary;
}

} // namespace

void Read(const Json::Value& json, MediaOutput& channel)
{
    if (!IsOfType(json, "MediaOutput"))
        return;
    ReadCommon(json, channel);
    IfText(json, "playingStatus", [&](const std::string& text) { channel.PlayingStatus(ToPlayingStatus(text)); });
    IfObjectOf("Speed", json, "speedOnAir",
               [&](const Json::Value& speed)
               {
                   const auto* numerator = Find(speed, "numerator");
                   const auto* denominator = Find(speed, "denominator");
                   if (numerator != nullptr && numerator->isInt() && denominator != nullptr && denominator->isInt())
                       channel.SpeedOnAir(Speed(numerator->asInt(), static_cast<std::uint32_t>(denominator->asInt())));
               });
    IfText(json, "globalLoopMode", [&](const std::string& text) { channel.GlobalLoopMode(ToPlayingLoopMode(text)); });
    IfNanoseconds(json, "remainingTime", "Duration", [&](Duration value) { channel.RemainingTime(value); });
    IfObjectOf("SequenceOutput", json, "sequence",
               [&](const Json::Value& object)
               {
                   SequenceOutput sequence;
                   IfObjectOf("SequenceRef", object, "sequenceOnAir",
                              [&](const Json::Value& reference)
                              {
                                  SharedReference<Sequence> result;
                                  IfText(reference, "id", [&](std::string id) { result = Identifier(std::move(id)); });
                                  sequence.SequenceOnAir(std::move(result));
                              });
                   IfObjectOf("AssetBlockOnAir", object, "assetBlockOnAir",
                              [&](const Json::Value& block) { sequence.AssetBlockOnAir(BlockOf(block)); });
                   IfObjectOf("AssetBlockOnAir", object, "nextAssetBlockOnAir",
                              [&](const Json::Value& block) { sequence.NextAssetBlockOnAir(BlockOf(block)); });
                   if (const auto* editMode = Find(object, "editMode"))
                       sequence.EditMode(editMode->asBool());
                   channel.Sequence(std::move(sequence));
               });
    IfTimePoint(json, "currentTimePointOnAir", [&](TimePoint point) { channel.CurrentTimePointOnAir(point); });
    IfTimeCode(json, "todTimecodeOnAir", [&](const TimeCode& timeCode) { channel.TodTimecodeOnAir(timeCode); });
    IfTimeCode(json, "userTimecodeOnAir", [&](const TimeCode& timeCode) { channel.UserTimecodeOnAir(timeCode); });
    IfText(json, "primaryTimecodeType",
           [&](const std::string& text) { channel.PrimaryTimecodeType(ToTimecodePrimary(text)); });
    IfObject(json, "inBoundary", [&](const Json::Value& object) { channel.InBoundary(BoundaryOf(object)); });
    IfObject(json, "outBoundary", [&](const Json::Value& object) { channel.OutBoundary(BoundaryOf(object)); });
}

} // namespace Bench
