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

namespace Bench
{

using namespace Qiv::BusinessEntityModel::BaseTypes;
using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using namespace Qiv::TimePoints;
using Qiv::BusinessEntityModel::Edits::Sequence;
using Qiv::DataModel::MediaAssets::MediaAsset;
using Qiv::DataModel::MediaAssets::TimecodePrimary;
using Qiv::DataModel::MediaAssets::ToTimecodePrimary;

namespace
{

// -- RapidJSON

void Member(RapidWriter& writer, const char* key, const std::string& value)
{
    writer.Key(key);
    writer.String(value.c_str());
}

void Nanoseconds(RapidWriter& writer, const char* key, const char* type, std::int64_t nanoseconds)
{
    writer.Key(key);
    writer.StartObject();
    writer.Key("_type");
    writer.String(type);
    Member(writer, "value", std::to_string(nanoseconds));
    writer.EndObject();
}

void AssetReference(RapidWriter& writer, const char* key, const SharedReference<MediaAsset>& reference)
{
    writer.Key(key);
    writer.StartObject();
    writer.Key("_type");
    writer.String("MediaAssetRef");
    Member(writer, "id", reference.Id().Value());
    if (const auto& asset = reference.Pointer())
    {
        writer.Key("mediaAsset");
        writer.StartObject();
        writer.Key("_type");
        writer.String("MediaAsset");
        Member(writer, "id", asset->Id().Value());
        if (!asset->Name().empty())
            Member(writer, "name", asset->Name());
        if (asset->InPoint() != TimePoint::Empty())
            Nanoseconds(writer, "inPoint", "TimePoint", asset->InPoint().Nanoseconds());
        if (asset->OutPoint() != TimePoint::Empty())
            Nanoseconds(writer, "outPoint", "TimePoint", asset->OutPoint().Nanoseconds());
        writer.EndObject();
    }
    writer.EndObject();
}

void CommonMembers(RapidWriter& writer, const MediaIO& channel)
{
    if (!channel.Id().IsEmpty())
        Member(writer, "id", channel.Id().Value());
    if (!channel.Name().empty())
        Member(writer, "name", channel.Name());
    if (!channel.MediaAssetOnAir().Id().IsEmpty())
        AssetReference(writer, "mediaAssetOnAir", channel.MediaAssetOnAir());
    if (channel.Metadata().Empty())
        return;
    writer.Key("metadata");
    writer.StartObject();
    for (const auto& profile : channel.Metadata().Values())
    {
        if (const auto* generic = dynamic_cast<const GenericMetadataProfile*>(profile.get()))
        {
            generic->Iterate(
                [&](const std::string& key, const std::string& value)
                {
                    Member(writer, (generic->FullyQualifiedName().Value() + "." + key).c_str(), value);
                    return true;
                });
        }
        else if (const auto* pel = dynamic_cast<const PelOperatorMetadataProfile*>(profile.get()))
        {
            writer.Key("qiv.peloperator.serverId");
            writer.Int(pel->ServerId());
            writer.Key("qiv.peloperator.index");
            writer.Int(pel->Index());
        }
    }
    writer.EndObject();
}

void AssetBlock(RapidWriter& writer, const char* key, const SequenceOutput::AssetBlockOutput& block)
{
    writer.Key(key);
    writer.StartObject();
    writer.Key("_type");
    writer.String("AssetBlockOnAir");
    Member(writer, "id", block.Id().Value());
    AssetReference(writer, "mediaAsset", block.MediaAssetRef());
    writer.EndObject();
}

} // namespace

void Write(RapidWriter& writer, const MediaInput& channel)
{
    const QivTimeCodeFormatter formatter;
    writer.StartObject();
    writer.Key("_type");
    writer.String("MediaInput");
    CommonMembers(writer, channel);
    Member(writer, "recordingStatus", ToString(channel.RecordingStatus()));
    if (channel.LastTimePoint() != TimePoint::Empty())
        Nanoseconds(writer, "lastTimePoint", "TimePoint", channel.LastTimePoint().Nanoseconds());
    if (channel.LastTodTimecode() != TimeCode::Empty())
        Member(writer, "lastTodTimecode", formatter.Format(channel.LastTodTimecode()));
    if (channel.LastUserTimecode() != TimeCode::Empty())
        Member(writer, "lastUserTimecode", formatter.Format(channel.LastUserTimecode()));
    if (channel.PrimaryTimecodeType() != TimecodePrimary::NotSet)
        Member(writer, "primaryTimecodeType", ToString(channel.PrimaryTimecodeType()));
    if (channel.RemainingCapacity() != Duration::Empty())
        Nanoseconds(writer, "remainingCapacity", "Duration", channel.RemainingCapacity().Nanoseconds());
    if (channel.TotalCapacity() != Duration::Empty())
        Nanoseconds(writer, "totalCapacity", "Duration", channel.TotalCapacity().Nanoseconds());
    writer.EndObject();
}

void Write(RapidWriter& writer, const MediaOutput& channel)
{
    const QivTimeCodeFormatter formatter;
    writer.StartObject();
    writer.Key("_type");
    writer.String("MediaOutput");
    CommonMembers(writer, channel);
    Member(writer, "playingStatus", ToString(channel.PlayingStatus()));
    writer.Key("speedOnAir");
    writer.StartObject();
    writer.Key("_type");
    writer.String("Speed");
    writer.Key("numerator");
    writer.Int(channel.SpeedOnAir().Numerator());
    writer.Key("denominator");
    writer.Int(static_cast<int>(channel.SpeedOnAir().Denominator()));
    writer.EndObject();
    Member(writer, "globalLoopMode", ToString(channel.GlobalLoopMode()));
    Nanoseconds(writer, "remainingTime", "Duration", channel.RemainingTime().Nanoseconds());
    Nanoseconds(writer, "currentTimePointOnAir", "TimePoint", channel.CurrentTimePointOnAir().Nanoseconds());
    Member(writer, "todTimecodeOnAir", formatter.Format(channel.TodTimecodeOnAir()));
    Member(writer, "userTimecodeOnAir", formatter.Format(channel.UserTimecodeOnAir()));
    Member(writer, "primaryTimecodeType", ToString(channel.PrimaryTimecodeType()));
    if (const auto& sequence = channel.Sequence())
    {
        writer.Key("sequence");
        writer.StartObject();
        writer.Key("_type");
        writer.String("SequenceOutput");
        writer.Key("sequenceOnAir");
        writer.StartObject();
        writer.Key("_type");
        writer.String("SequenceRef");
        Member(writer, "id", sequence->SequenceOnAir().Id().Value());
        writer.EndObject();
        AssetBlock(writer, "assetBlockOnAir", sequence->AssetBlockOnAir());
        if (const auto& next = sequence->NextAssetBlockOnAir())
            AssetBlock(writer, "nextAssetBlockOnAir", *next);
        writer.Key("editMode");
        writer.Bool(sequence->EditMode());
        writer.EndObject();
    }
    const auto& in = static_cast<const BoundaryAbsolute&>(*channel.InBoundary());
    writer.Key("inBoundary");
    writer.StartObject();
    writer.Key("_type");
    writer.String("BoundaryAbsolute");
    Nanoseconds(writer, "timepoint", "TimePoint", in.Timepoint().Nanoseconds());
    writer.EndObject();
    const auto& out = static_cast<const BoundaryRelative&>(*channel.OutBoundary());
    writer.Key("outBoundary");
    writer.StartObject();
    writer.Key("_type");
    writer.String("BoundaryRelative");
    Member(writer, "origin", ToString(out.Origin()));
    writer.Key("offset");
    writer.Int(out.Offset());
    writer.EndObject();
    writer.EndObject();
}

void Write(RapidWriter& writer, const Node& node)
{
    writer.StartObject();
    writer.Key("_type");
    writer.String("Node");
    Member(writer, "id", node.NodeId().Value());
    if (node.SerialNumber() != Node::UndefinedSerialNumber())
    {
        writer.Key("serialNumber");
        writer.Int(node.SerialNumber());
    }
    Member(writer, "hostName", node.HostName());
    Member(writer, "ipAddress", node.IpAddress());
    writer.Key("gbeIpAddresses");
    writer.StartArray();
    for (const auto& address : node.GbeIpAddresses())
        writer.String(address.c_str());
    writer.EndArray();
    Member(writer, "chassis", node.Chassis());
    Member(writer, "hardwareRevision", node.HardwareRevision());
    Member(writer, "tarvonelVersion", node.TarvonelVersion());
    writer.EndObject();
}

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

template <typename Apply>
void IfTimeCode(const Json::Value& json, const char* key, Apply apply)
{
    IfText(json, key,
           [&](const std::string& text)
           {
               const QivTimeCodeParser parser;
               if (parser.IsStringFormatValid(text))
                   apply(parser.Parse(text));
           });
}

template <typename Apply>
void IfNanoseconds(const Json::Value& json, const char* key, const char* type, Apply apply)
{
    IfObject(json, key,
             [&](const Json::Value& object)
             {
                 IfText(object, "_type",
                        [&](const std::string& found)
                        {
                            if (found != type)
                                return;
                            IfText(object, "value",
                                   [&](const std::string& value)
                                   {
                                       const QivDurationParser parser;
                                       if (parser.IsStringFormatValid(value))
                                           apply(parser.Parse(value));
                                   });
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
    IfObject(json, key,
             [&](const Json::Value& reference)
             {
                 SharedReference<MediaAsset> result;
                 IfText(reference, "id", [&](const std::string& id) { result.Id(Identifier(id)); });
                 IfObject(reference, "mediaAsset",
                          [&](const Json::Value& object)
                          {
                              auto asset = std::make_shared<MediaAsset>();
                              IfText(object, "id", [&](const std::string& id) { asset->Id(Identifier(id)); });
                              IfText(object, "name", [&](const std::string& name) { asset->Name(Utf8String(name)); });
                              IfTimePoint(object, "inPoint", [&](TimePoint point) { asset->InPoint(point); });
                              IfTimePoint(object, "outPoint", [&](TimePoint point) { asset->OutPoint(point); });
                              result = asset;
                          });
                 apply(result);
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
    dynamic_cast<GenericMetadataProfile&>(channel.Metadata().At(profileName)).Set(name.substr(dot + 1), value);
}

void ReadGenericProfiles(const Json::Value& metadata, MediaIO& channel)
{
    for (auto member = metadata.begin(); member != metadata.end(); ++member)
        if (member->isString())
            SetMetadata(channel, member.name(), member->asString());
}

void ReadCommon(const Json::Value& json, MediaIO& channel)
{
    IfText(json, "id", [&](const std::string& id) { channel.Id(Identifier(id)); });
    IfText(json, "name", [&](const std::string& name) { channel.Name(Utf8String(name)); });
    IfAssetReference(json, "mediaAssetOnAir",
                     [&](const SharedReference<MediaAsset>& reference) { channel.MediaAssetOnAir(reference); });
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
    if (const auto* type = Find(json, "_type");
        type == nullptr || !type->isString() || type->asString() != "MediaInput")
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
    IfText(json, "id", [&](const std::string& id) { block.Id(Identifier(id)); });
    IfAssetReference(json, "mediaAsset",
                     [&](const SharedReference<MediaAsset>& reference) { block.MediaAssetRef(reference); });
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
    if (const auto* type = Find(json, "_type");
        type == nullptr || !type->isString() || type->asString() != "MediaOutput")
        return;
    ReadCommon(json, channel);
    IfText(json, "playingStatus", [&](const std::string& text) { channel.PlayingStatus(ToPlayingStatus(text)); });
    IfObject(json, "speedOnAir",
             [&](const Json::Value& speed)
             {
                 const auto* numerator = Find(speed, "numerator");
                 const auto* denominator = Find(speed, "denominator");
                 if (numerator != nullptr && numerator->isInt() && denominator != nullptr && denominator->isInt())
                     channel.SpeedOnAir(Speed(numerator->asInt(), static_cast<std::uint32_t>(denominator->asInt())));
             });
    IfText(json, "globalLoopMode", [&](const std::string& text) { channel.GlobalLoopMode(ToPlayingLoopMode(text)); });
    IfNanoseconds(json, "remainingTime", "Duration", [&](Duration value) { channel.RemainingTime(value); });
    IfObject(json, "sequence",
             [&](const Json::Value& object)
             {
                 SequenceOutput sequence;
                 IfObject(object, "sequenceOnAir",
                          [&](const Json::Value& reference)
                          {
                              SharedReference<Sequence> result;
                              IfText(reference, "id", [&](const std::string& id) { result.Id(Identifier(id)); });
                              sequence.SequenceOnAir(result);
                          });
                 IfObject(object, "assetBlockOnAir",
                          [&](const Json::Value& block) { sequence.AssetBlockOnAir(BlockOf(block)); });
                 IfObject(object, "nextAssetBlockOnAir",
                          [&](const Json::Value& block) { sequence.NextAssetBlockOnAir(BlockOf(block)); });
                 if (const auto* editMode = Find(object, "editMode"))
                     sequence.EditMode(editMode->asBool());
                 channel.Sequence(sequence);
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
