// Writing with RapidJSON, driven by hand.

#include "Peers.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>

#include <cstdint>
#include <string>

namespace Bench
{

using namespace Qiv::BusinessEntityModel::BaseTypes;
using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using namespace Qiv::TimePoints;
using Qiv::DataModel::MediaAssets::MediaAsset;
using Qiv::DataModel::MediaAssets::TimecodePrimary;

namespace
{

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

} // namespace Bench
