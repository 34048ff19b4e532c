#include "Peers.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

// -- Reading from the trees of jsoncpp and of RapidJSON: one plain look-up of each member

namespace
{

// What the trees call differently. A member that is null is none.

const Json::Value* Find(const Json::Value& object, const char* key)
{
    const auto& member = object[key];
    return member.isNull() ? nullptr : &member;
}

bool IsText(const Json::Value& json)
{
    return json.isString();
}

std::string TextOf(const Json::Value& text)
{
    return text.asString();
}

bool IsObject(const Json::Value& json)
{
    return json.isObject();
}

std::optional<int> IntOf(const Json::Value& json)
{
    return json.isInt() ? std::optional(json.asInt()) : std::nullopt;
}

bool IsTrue(const Json::Value& json)
{
    return json.asBool();
}

template <typename Visit>
void VisitTexts(const Json::Value& object, Visit visit)
{
    for (auto member = object.begin(); member != object.end(); ++member)
        if (member->isString())
            visit(member.name(), member->asString());
}

std::vector<std::string> TextsOf(const Json::Value& array)
{
    std::vector<std::string> texts;
    for (const auto& element : array)
        if (element.isString())
            texts.push_back(element.asString());
    return texts;
}

const rapidjson::Value* Find(const rapidjson::Value& object, const char* key)
{
    const auto member = object.FindMember(key);
    return member != object.MemberEnd() && !member->value.IsNull() ? &member->value : nullptr;
}

bool IsText(const rapidjson::Value& json)
{
    return json.IsString();
}

std::string_view TextOf(const rapidjson::Value& text)
{
    return {text.GetString(), text.GetStringLength()};
}

bool IsObject(const rapidjson::Value& json)
{
    return json.IsObject();
}

std::optional<int> IntOf(const rapidjson::Value& json)
{
    return json.IsInt() ? std::optional(json.GetInt()) : std::nullopt;
}

bool IsTrue(const rapidjson::Value& json)
{
    return json.IsTrue();
}

template <typename Visit>
void VisitTexts(const rapidjson::Value& object, Visit visit)
{
    for (const auto& member : object.GetObject())
        if (member.value.IsString())
            visit(TextOf(member.name), TextOf(member.value));
}

std::vector<std::string> TextsOf(const rapidjson::Value& array)
{
    std::vector<std::string> texts;
    if (!array.IsArray())
        return texts;
    for (const auto& element : array.GetArray())
        if (element.IsString())
            texts.emplace_back(TextOf(element));
    return texts;
}

// What is alike. An enumeration is found by a std::string.

const std::string& Owned(const std::string& text)
{
    return text;
}

std::string Owned(std::string_view text)
{
    return std::string(text);
}

template <typename Tree, typename Apply>
void IfText(const Tree& json, const char* key, Apply apply)
{
    if (const auto* member = Find(json, key); member != nullptr && IsText(*member))
        apply(TextOf(*member));
}

template <typename Tree, typename Apply>
void IfObject(const Tree& json, const char* key, Apply apply)
{
    if (const auto* member = Find(json, key); member != nullptr && IsObject(*member))
        apply(*member);
}

template <typename Tree>
bool IsOfType(const Tree& json, const char* type)
{
    bool isOfType = false;
    IfText(json, "_type", [&](const auto& found) { isOfType = found == type; });
    return isOfType;
}

// Also skips an object of another type.
template <typename Tree, typename Apply>
void IfObjectOf(const char* type, const Tree& json, const char* key, Apply apply)
{
    IfObject(json, key,
             [&](const Tree& object)
             {
                 if (IsOfType(object, type))
                     apply(object);
             });
}

template <typename Tree, typename Apply>
void IfTimeCode(const Tree& json, const char* key, Apply apply)
{
    IfText(json, key,
           [&](const auto& text)
           {
               TimeCode timeCode;
               if (QivTimeCodeParser::TryRead(text, timeCode))
                   apply(timeCode);
           });
}

template <typename Tree, typename Apply>
void IfNanoseconds(const Tree& json, const char* key, const char* type, Apply apply)
{
    IfObjectOf(type, json, key,
               [&](const Tree& object)
               {
                   IfText(object, "value",
                          [&](const auto& value)
                          {
                              Duration duration;
                              if (QivDurationParser::TryRead(value, duration))
                                  apply(duration);
                          });
               });
}

template <typename Tree, typename Apply>
void IfTimePoint(const Tree& json, const char* key, Apply apply)
{
    IfNanoseconds(json, key, "TimePoint", [&](Duration value) { apply(TimePoint(value.Nanoseconds())); });
}

template <typename Tree, typename Apply>
void IfAssetReference(const Tree& json, const char* key, Apply apply)
{
    IfObjectOf("MediaAssetRef", json, key,
               [&](const Tree& reference)
               {
                   SharedReference<MediaAsset> result;
                   IfText(reference, "id", [&](auto id) { result = Identifier(std::string(std::move(id))); });
                   IfObjectOf("MediaAsset", reference, "mediaAsset",
                              [&](const Tree& object)
                              {
                                  auto asset = std::make_shared<MediaAsset>();
                                  IfText(object, "id",
                                         [&](auto id) { asset->Id(Identifier(std::string(std::move(id)))); });
                                  IfText(object, "name",
                                         [&](auto name) { asset->Name(Utf8String(std::string(std::move(name)))); });
                                  IfTimePoint(object, "inPoint", [&](TimePoint point) { asset->InPoint(point); });
                                  IfTimePoint(object, "outPoint", [&](TimePoint point) { asset->OutPoint(point); });
                                  result = asset;
                              });
                   apply(std::move(result));
               });
}

void SetMetadata(MediaIO& channel, std::string_view name, std::string_view value)
{
    const auto dot = name.rfind('.');
    if (dot == std::string_view::npos)
        return;
    const FullyQualifiedName profileName(name.substr(0, dot));
    if (!channel.Metadata().Contains(profileName))
        channel.Metadata().Set(std::make_shared<GenericMetadataProfile>(profileName));
    dynamic_cast<GenericMetadataProfile&>(channel.Metadata().At(profileName)).Assign(name.substr(dot + 1), value);
}

// The member when it is an int.
template <typename Tree>
std::optional<int> IntIn(const Tree& json, const char* key)
{
    const auto* member = Find(json, key);
    return member != nullptr ? IntOf(*member) : std::nullopt;
}

template <typename Tree>
void ReadCommon(const Tree& json, MediaIO& channel)
{
    IfText(json, "id", [&](auto id) { channel.Id(Identifier(std::string(std::move(id)))); });
    IfText(json, "name", [&](auto name) { channel.Name(Utf8String(std::string(std::move(name)))); });
    IfAssetReference(json, "mediaAssetOnAir",
                     [&](SharedReference<MediaAsset> reference) { channel.MediaAssetOnAir(std::move(reference)); });
    IfObject(json, "metadata",
             [&](const Tree& metadata)
             {
                 const auto serverId = IntIn(metadata, "qiv.peloperator.serverId");
                 const auto index = IntIn(metadata, "qiv.peloperator.index");
                 if (serverId || index)
                 {
                     const auto profile = std::make_shared<PelOperatorMetadataProfile>();
                     if (serverId)
                         profile->ServerId(*serverId);
                     if (index)
                         profile->Index(*index);
                     channel.Metadata().Set(profile);
                 }
                 VisitTexts(metadata,
                            [&](std::string_view name, std::string_view value) { SetMetadata(channel, name, value); });
             });
}

template <typename Tree>
void ReadEntity(const Tree& json, MediaInput& channel)
{
    if (!IsOfType(json, "MediaInput"))
        return;
    ReadCommon(json, channel);
    IfText(json, "recordingStatus", [&](const auto& text) { channel.RecordingStatus(ToRecordingStatus(Owned(text))); });
    IfTimePoint(json, "lastTimePoint", [&](TimePoint point) { channel.LastTimePoint(point); });
    IfTimeCode(json, "lastTodTimecode", [&](const TimeCode& timeCode) { channel.LastTodTimecode(timeCode); });
    IfTimeCode(json, "lastUserTimecode", [&](const TimeCode& timeCode) { channel.LastUserTimecode(timeCode); });
    IfText(json, "primaryTimecodeType",
           [&](const auto& text) { channel.PrimaryTimecodeType(ToTimecodePrimary(Owned(text))); });
    IfNanoseconds(json, "remainingCapacity", "Duration", [&](Duration value) { channel.RemainingCapacity(value); });
    IfNanoseconds(json, "totalCapacity", "Duration", [&](Duration value) { channel.TotalCapacity(value); });
}

template <typename Tree>
SequenceOutput::AssetBlockOutput BlockOf(const Tree& json)
{
    SequenceOutput::AssetBlockOutput block;
    IfText(json, "id", [&](auto id) { block.Id(Identifier(std::string(std::move(id)))); });
    IfAssetReference(json, "mediaAsset",
                     [&](SharedReference<MediaAsset> reference) { block.MediaAssetRef(std::move(reference)); });
    return block;
}

template <typename Tree>
std::unique_ptr<Boundary> BoundaryOf(const Tree& json)
{
    std::unique_ptr<Boundary> boundary;
    IfText(json, "_type",
           [&](const auto& type)
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
                   IfText(json, "origin", [&](const auto& text) { relative->Origin(ToBoundaryOrigin(Owned(text))); });
                   if (const auto offset = IntIn(json, "offset"))
                       relative->Offset(*offset);
                   boundary = std::move(relative);
               }
           });
    return boundary;
}

template <typename Tree>
void ReadEntity(const Tree& json, MediaOutput& channel)
{
    if (!IsOfType(json, "MediaOutput"))
        return;
    ReadCommon(json, channel);
    IfText(json, "playingStatus", [&](const auto& text) { channel.PlayingStatus(ToPlayingStatus(Owned(text))); });
    IfObjectOf("Speed", json, "speedOnAir",
               [&](const Tree& speed)
               {
                   const auto numerator = IntIn(speed, "numerator");
                   const auto denominator = IntIn(speed, "denominator");
                   if (numerator && denominator)
                       channel.SpeedOnAir(Speed(*numerator, static_cast<std::uint32_t>(*denominator)));
               });
    IfText(json, "globalLoopMode", [&](const auto& text) { channel.GlobalLoopMode(ToPlayingLoopMode(Owned(text))); });
    IfNanoseconds(json, "remainingTime", "Duration", [&](Duration value) { channel.RemainingTime(value); });
    IfObjectOf("SequenceOutput", json, "sequence",
               [&](const Tree& object)
               {
                   SequenceOutput sequence;
                   IfObjectOf("SequenceRef", object, "sequenceOnAir",
                              [&](const Tree& reference)
                              {
                                  SharedReference<Sequence> result;
                                  IfText(reference, "id",
                                         [&](auto id) { result = Identifier(std::string(std::move(id))); });
                                  sequence.SequenceOnAir(std::move(result));
                              });
                   IfObjectOf("AssetBlockOnAir", object, "assetBlockOnAir",
                              [&](const Tree& block) { sequence.AssetBlockOnAir(BlockOf(block)); });
                   IfObjectOf("AssetBlockOnAir", object, "nextAssetBlockOnAir",
                              [&](const Tree& block) { sequence.NextAssetBlockOnAir(BlockOf(block)); });
                   if (const auto* editMode = Find(object, "editMode"))
                       sequence.EditMode(IsTrue(*editMode));
                   channel.Sequence(std::move(sequence));
               });
    IfTimePoint(json, "currentTimePointOnAir", [&](TimePoint point) { channel.CurrentTimePointOnAir(point); });
    IfTimeCode(json, "todTimecodeOnAir", [&](const TimeCode& timeCode) { channel.TodTimecodeOnAir(timeCode); });
    IfTimeCode(json, "userTimecodeOnAir", [&](const TimeCode& timeCode) { channel.UserTimecodeOnAir(timeCode); });
    IfText(json, "primaryTimecodeType",
           [&](const auto& text) { channel.PrimaryTimecodeType(ToTimecodePrimary(Owned(text))); });
    IfObject(json, "inBoundary", [&](const Tree& object) { channel.InBoundary(BoundaryOf(object)); });
    IfObject(json, "outBoundary", [&](const Tree& object) { channel.OutBoundary(BoundaryOf(object)); });
}

template <typename Tree>
void ReadEntity(const Tree& json, Node& node)
{
    if (!IsOfType(json, "Node"))
        return;
    const auto textIn = [&](const char* key)
    {
        std::string text;
        IfText(json, key, [&](auto found) { text = std::move(found); });
        return text;
    };
    std::vector<std::string> addresses;
    if (const auto* array = Find(json, "gbeIpAddresses"))
        addresses = TextsOf(*array);
    node = Node(Identifier(textIn("id")), IntIn(json, "serialNumber").value_or(Node::UndefinedSerialNumber()),
                textIn("hostName"), textIn("ipAddress"), addresses, textIn("chassis"), textIn("hardwareRevision"),
                textIn("tarvonelVersion"));
}

} // namespace

void Read(const Json::Value& json, MediaInput& channel)
{
    ReadEntity(json, channel);
}

void Read(const Json::Value& json, MediaOutput& channel)
{
    ReadEntity(json, channel);
}

void Read(const Json::Value& json, Node& node)
{
    ReadEntity(json, node);
}

void Read(const rapidjson::Value& json, MediaInput& channel)
{
    ReadEntity(json, channel);
}

void Read(const rapidjson::Value& json, MediaOutput& channel)
{
    ReadEntity(json, channel);
}

void Read(const rapidjson::Value& json, Node& node)
{
    ReadEntity(json, node);
}

} // namespace Bench
