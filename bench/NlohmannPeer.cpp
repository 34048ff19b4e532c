// Reading from nlohmann's tree, with from_json for each entity: an optional member is found once and taken with
// get<T>(), which throws for a wrong type; a text that is only parsed is not copied.

#include "Peers.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace Qiv::BusinessEntityModel::BaseTypes;
using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using namespace Qiv::TimePoints;
using Qiv::BusinessEntityModel::Edits::Sequence;
using Qiv::DataModel::MediaAssets::MediaAsset;
using Qiv::DataModel::MediaAssets::ToTimecodePrimary;

namespace
{

using nlohmann::json;

// The member of an object unless it is absent or null.
const json* Find(const json& object, const char* key)
{
    const auto member = object.find(key);
    return member != object.end() && !member->is_null() ? &*member : nullptr;
}

template <typename T, typename Apply>
void IfPresent(const json& object, const char* key, Apply apply)
{
    if (const auto* member = Find(object, key))
        apply(member->get<T>());
}

template <typename Apply>
void IfText(const json& object, const char* key, Apply apply)
{
    if (const auto* member = Find(object, key))
        apply(member->get_ref<const std::string&>());
}

void ExpectType(const json& object, const char* type)
{
    if (object.at("_type").get_ref<const std::string&>() != type)
        throw std::invalid_argument(std::string(type) + " expected");
}

std::int64_t NanosecondsOf(const json& object, const char* type)
{
    ExpectType(object, type);
    return QivDurationParser().Parse(object.at("value").get_ref<const std::string&>()).Nanoseconds();
}

} // namespace

namespace nlohmann
{

template <>
struct adl_serializer<Identifier>
{
    static void from_json(const json& text, Identifier& id) { id = Identifier(text.get<std::string>()); }
};

template <>
struct adl_serializer<TimePoint>
{
    static void from_json(const json& object, TimePoint& point)
    {
        point = TimePoint(NanosecondsOf(object, "TimePoint"));
    }
};

template <>
struct adl_serializer<Duration>
{
    static void from_json(const json& object, Duration& duration)
    {
        duration = Duration(NanosecondsOf(object, "Duration"));
    }
};

template <>
struct adl_serializer<TimeCode>
{
    static void from_json(const json& text, TimeCode& timeCode)
    {
        timeCode = QivTimeCodeParser().Parse(text.get_ref<const std::string&>());
    }
};

template <>
struct adl_serializer<Speed>
{
    static void from_json(const json& object, Speed& speed)
    {
        ExpectType(object, "Speed");
        speed = Speed(object.at("numerator").get<int>(), object.at("denominator").get<std::uint32_t>());
    }
};

template <>
struct adl_serializer<MediaAsset>
{
    static void from_json(const json& object, MediaAsset& asset)
    {
        ExpectType(object, "MediaAsset");
        IfPresent<Identifier>(object, "id", [&](Identifier id) { asset.Id(std::move(id)); });
        IfPresent<std::string>(object, "name", [&](std::string name) { asset.Name(std::move(name)); });
        IfPresent<TimePoint>(object, "inPoint", [&](TimePoint point) { asset.InPoint(point); });
        IfPresent<TimePoint>(object, "outPoint", [&](TimePoint point) { asset.OutPoint(point); });
    }
};

template <>
struct adl_serializer<SharedReference<MediaAsset>>
{
    static void from_json(const json& object, SharedReference<MediaAsset>& reference)
    {
        ExpectType(object, "MediaAssetRef");
        if (const auto* asset = Find(object, "mediaAsset"))
            reference = std::make_shared<MediaAsset>(asset->get<MediaAsset>());
        else
            reference = SharedReference<MediaAsset>(object.at("id").get<Identifier>());
    }
};

template <>
struct adl_serializer<SharedReference<Sequence>>
{
    static void from_json(const json& object, SharedReference<Sequence>& reference)
    {
        ExpectType(object, "SequenceRef");
        reference = SharedReference<Sequence>(object.at("id").get<Identifier>());
    }
};

template <>
struct adl_serializer<MetadataProfileDictionary>
{
    static void from_json(const json& object, MetadataProfileDictionary& metadata)
    {
        const auto* serverId = Find(object, "qiv.peloperator.serverId");
        const auto* index = Find(object, "qiv.peloperator.index");
        if (serverId != nullptr || index != nullptr)
        {
            const auto profile = std::make_shared<PelOperatorMetadataProfile>();
            if (serverId != nullptr)
                profile->ServerId(serverId->get<int>());
            if (index != nullptr)
                profile->Index(index->get<int>());
            metadata.Set(profile);
        }
        for (const auto& [name, value] : object.items())
        {
            const auto dot = name.rfind('.');
            if (!value.is_string() || dot == std::string::npos)
                continue;
            const FullyQualifiedName profileName(name.substr(0, dot));
            if (!metadata.Contains(profileName))
                metadata.Set(std::make_shared<GenericMetadataProfile>(profileName));
            dynamic_cast<GenericMetadataProfile&>(metadata.At(profileName))
                .Assign(std::string_view(name).substr(dot + 1), value.get_ref<const std::string&>());
        }
    }
};

template <>
struct adl_serializer<SequenceOutput::AssetBlockOutput>
{
    static void from_json(const json& object, SequenceOutput::AssetBlockOutput& block)
    {
        ExpectType(object, "AssetBlockOnAir");
        IfPresent<Identifier>(object, "id", [&](Identifier id) { block.Id(std::move(id)); });
        IfPresent<SharedReference<MediaAsset>>(
            object, "mediaAsset", [&](SharedReference<MediaAsset> asset) { block.MediaAssetRef(std::move(asset)); });
    }
};

template <>
struct adl_serializer<SequenceOutput>
{
    static void from_json(const json& object, SequenceOutput& sequence)
    {
        using Block = SequenceOutput::AssetBlockOutput;
        ExpectType(object, "SequenceOutput");
        IfPresent<SharedReference<Sequence>>(object, "sequenceOnAir",
                                             [&](SharedReference<Sequence> reference)
                                             { sequence.SequenceOnAir(std::move(reference)); });
        IfPresent<Block>(object, "assetBlockOnAir", [&](Block block) { sequence.AssetBlockOnAir(std::move(block)); });
        IfPresent<Block>(object, "nextAssetBlockOnAir",
                         [&](Block block) { sequence.NextAssetBlockOnAir(std::move(block)); });
        IfPresent<bool>(object, "editMode", [&](bool editMode) { sequence.EditMode(editMode); });
    }
};

template <>
struct adl_serializer<std::unique_ptr<Boundary>>
{
    static void from_json(const json& object, std::unique_ptr<Boundary>& boundary)
    {
        if (object.at("_type").get_ref<const std::string&>() == "BoundaryAbsolute")
        {
            auto absolute = std::make_unique<BoundaryAbsolute>();
            IfPresent<TimePoint>(object, "timepoint", [&](TimePoint point) { absolute->Timepoint(point); });
            boundary = std::move(absolute);
            return;
        }
        ExpectType(object, "BoundaryRelative");
        auto relative = std::make_unique<BoundaryRelative>();
        IfText(object, "origin", [&](const std::string& text) { relative->Origin(ToBoundaryOrigin(text)); });
        IfPresent<int>(object, "offset", [&](int offset) { relative->Offset(offset); });
        boundary = std::move(relative);
    }
};

} // namespace nlohmann

namespace Bench
{

namespace
{

void ReadCommon(const json& object, MediaIO& channel)
{
    IfPresent<Identifier>(object, "id", [&](Identifier id) { channel.Id(std::move(id)); });
    IfPresent<std::string>(object, "name", [&](std::string name) { channel.Name(std::move(name)); });
    IfPresent<SharedReference<MediaAsset>>(object, "mediaAssetOnAir",
                                           [&](SharedReference<MediaAsset> asset)
                                           { channel.MediaAssetOnAir(std::move(asset)); });
    if (const auto* metadata = Find(object, "metadata"))
        metadata->get_to(channel.Metadata());
}

} // namespace

void Read(const json& object, MediaInput& channel)
{
    ExpectType(object, "MediaInput");
    ReadCommon(object, channel);
    IfText(object, "recordingStatus",
           [&](const std::string& text) { channel.RecordingStatus(ToRecordingStatus(text)); });
    IfPresent<TimePoint>(object, "lastTimePoint", [&](TimePoint point) { channel.LastTimePoint(point); });
    IfPresent<TimeCode>(object, "lastTodTimecode", [&](const TimeCode& time) { channel.LastTodTimecode(time); });
    IfPresent<TimeCode>(object, "lastUserTimecode", [&](const TimeCode& time) { channel.LastUserTimecode(time); });
    IfText(object, "primaryTimecodeType",
           [&](const std::string& text) { channel.PrimaryTimecodeType(ToTimecodePrimary(text)); });
    IfPresent<Duration>(object, "remainingCapacity", [&](Duration value) { channel.RemainingCapacity(value); });
    IfPresent<Duration>(object, "totalCapacity", [&](Duration value) { channel.TotalCapacity(value); });
}

void Read(const json& object, MediaOutput& channel)
{
    ExpectType(object, "MediaOutput");
    ReadCommon(object, channel);
    IfText(object, "playingStatus", [&](const std::string& text) { channel.PlayingStatus(ToPlayingStatus(text)); });
    IfPresent<Speed>(object, "speedOnAir", [&](Speed speed) { channel.SpeedOnAir(speed); });
    IfText(object, "globalLoopMode", [&](const std::string& text) { channel.GlobalLoopMode(ToPlayingLoopMode(text)); });
    IfPresent<Duration>(object, "remainingTime", [&](Duration value) { channel.RemainingTime(value); });
    IfPresent<SequenceOutput>(object, "sequence", [&](SequenceOutput value) { channel.Sequence(std::move(value)); });
    IfPresent<TimePoint>(object, "currentTimePointOnAir",
                         [&](TimePoint point) { channel.CurrentTimePointOnAir(point); });
    IfPresent<TimeCode>(object, "todTimecodeOnAir", [&](const TimeCode& time) { channel.TodTimecodeOnAir(time); });
    IfPresent<TimeCode>(object, "userTimecodeOnAir", [&](const TimeCode& time) { channel.UserTimecodeOnAir(time); });
    IfText(object, "primaryTimecodeType",
           [&](const std::string& text) { channel.PrimaryTimecodeType(ToTimecodePrimary(text)); });
    IfPresent<std::unique_ptr<Boundary>>(
        object, "inBoundary", [&](std::unique_ptr<Boundary> boundary) { channel.InBoundary(std::move(boundary)); });
    IfPresent<std::unique_ptr<Boundary>>(
        object, "outBoundary", [&](std::unique_ptr<Boundary> boundary) { channel.OutBoundary(std::move(boundary)); });
}

void Read(const json& object, Node& node)
{
    ExpectType(object, "Node");
    const auto textIn = [&](const char* key)
    {
        const auto* text = Find(object, key);
        return text != nullptr ? text->get<std::string>() : std::string();
    };
    std::vector<std::string> addresses;
    if (const auto* array = Find(object, "gbeIpAddresses"))
        array->get_to(addresses);
    const auto* serialNumber = Find(object, "serialNumber");
    node =
        Node(object.at("id").get<Identifier>(),
             serialNumber != nullptr ? serialNumber->get<int>() : Node::UndefinedSerialNumber(), textIn("hostName"),
             textIn("ipAddress"), addresses, textIn("chassis"), textIn("hardwareRevision"), textIn("tarvonelVersion"));
}

} // namespace Bench
