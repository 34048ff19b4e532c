#include "Model.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <memory>

namespace Bench
{

using namespace Qiv::BusinessEntityModel::BaseTypes;
using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using namespace Qiv::TimePoints;
using Qiv::BusinessEntityModel::Edits::Sequence;
using Qiv::DataModel::MediaAssets::MediaAsset;
using Qiv::DataModel::MediaAssets::TimecodePrimary;

namespace
{

void SetCommonMembers(MediaIO& channel)
{
    channel.Id(Identifier("9b1f6a52-6b2e-4f0e-9c55-0a1f3d6c7e11"));
    channel.Name(Utf8String("Camera A, main stand"));

    MediaAsset asset;
    asset.Id(Identifier("0f3e5a62-1a5b-4b7e-9d2e-5f1d8a7c9b10"));
    asset.Name(Utf8String("Goal 1 : 0"));
    asset.InPoint(TimePoint(1458569109680000000));
    asset.OutPoint(TimePoint(1458569121480000000));
    channel.MediaAssetOnAir(SharedReference<MediaAsset>(std::make_shared<MediaAsset>(asset)));

    auto camera = std::make_shared<GenericMetadataProfile>(FullyQualifiedName("studio.camera"));
    camera->Set("angle", "wide");
    camera->Set("operator", "J. Doe");
    camera->Set("position", "north stand");
    channel.Metadata().Set(camera);
    PelOperatorMetadataProfile profile;
    profile.ServerId(1230);
    profile.Index(2);
    channel.Metadata().Set(std::make_shared<PelOperatorMetadataProfile>(profile));
}

SequenceOutput::AssetBlockOutput Block(const char* id)
{
    SequenceOutput::AssetBlockOutput block;
    block.Id(Identifier(id));
    block.MediaAssetRef(SharedReference<MediaAsset>(Identifier("0f3e5a62-1a5b-4b7e-9d2e-5f1d8a7c9b10")));
    return block;
}

} // namespace

MediaInput SmallMediaInput()
{
    MediaInput channel;
    channel.Id(Identifier("rec-1"));
    channel.Name(Utf8String("Camera A"));
    channel.RecordingStatus(RecordingStatus::Recording);
    channel.LastTodTimecode(TimeCode(2016, 3, 21, 14, 5, 9, 17, Rate(25), false));
    return channel;
}

MediaInput FullMediaInput()
{
    MediaInput channel;
    SetCommonMembers(channel);
    channel.RecordingStatus(RecordingStatus::Recording);
    channel.LastTimePoint(TimePoint(1458569109680000000));
    channel.LastTodTimecode(TimeCode(2016, 3, 21, 14, 5, 9, 17, Rate(25), false));
    channel.LastUserTimecode(TimeCode(2016, 3, 21, 10, 0, 0, 2, Rate(30), true));
    channel.PrimaryTimecodeType(TimecodePrimary::Tod);
    Duration remaining(3600000000000);
    channel.TotalCapacity(Duration(7200000000000));
    channel.RemainingCapacity(remaining);
    return channel;
}

MediaOutput FullMediaOutput()
{
    MediaOutput channel;
    SetCommonMembers(channel);
    channel.PlayingStatus(PlayingStatus::Playing);
    channel.SpeedOnAir(Speed(1, 2));
    channel.GlobalLoopMode(PlayingLoopMode::Bounce);
    Duration remaining(11800000000);
    channel.RemainingTime(remaining);
    channel.CurrentTimePointOnAir(TimePoint(1458569110000000000));
    channel.TodTimecodeOnAir(TimeCode(2016, 3, 21, 14, 5, 10, 0, Rate(25), false));
    channel.UserTimecodeOnAir(TimeCode(2016, 3, 21, 10, 0, 0, 2, Rate(30), true));
    channel.PrimaryTimecodeType(TimecodePrimary::User);
    channel.InBoundary(std::make_unique<BoundaryAbsolute>(TimePoint(1458569109680000000)));
    channel.OutBoundary(std::make_unique<BoundaryRelative>(BoundaryOrigin::RelativeToOppositeMediaBoundary, -25));

    SequenceOutput sequence;
    SharedReference<Sequence> reference(Identifier("5d0c1b9e-88a1-4a3f-b0f5-3f0a7b1c2d3e"));
    sequence.SequenceOnAir(reference);
    sequence.AssetBlockOnAir(Block("block-1"));
    sequence.NextAssetBlockOnAir(Block("block-2"));
    sequence.EditMode(true);
    channel.Sequence(sequence);
    return channel;
}

Node FullNode()
{
    return Node(Identifier("5f2c8a4e-07b1-4d0c-9a55-6e1f2b7c8d90"), 1230, "replay-server-3", "192.0.2.31",
                {"198.51.100.31", "198.51.100.32"}, "6U", "B2", "16.04.31");
}

} // namespace Bench
