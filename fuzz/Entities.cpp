#include <Entities.h>
#include <Json.h>

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <cstring>
#include <string>
#include <vector>

namespace Fuzz
{

using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using Qiv::BusinessEntityModel::BaseTypes::FullyQualifiedName;
using Qiv::BusinessEntityModel::BaseTypes::GenericMetadataProfile;
using Qiv::BusinessEntityModel::BaseTypes::Identifier;
using Qiv::DataModel::MediaAssets::TimecodePrimary;
using Qiv::TimePoints::Duration;
using Qiv::TimePoints::Rate;

namespace
{

void FillCommon(MediaIO& channel)
{
    channel.Id(Identifier("old-channel"));
    channel.Name("old name");
    SharedReference<MediaAsset> asset;
    Fill(asset);
    channel.MediaAssetOnAir(asset);
    Fill(channel.Metadata());
}

} // namespace

void Fill(MediaInput& channel)
{
    FillCommon(channel);
    channel.RecordingStatus(RecordingStatus::Pause);
    channel.LastTimePoint(TimePoint(1));
    channel.LastTodTimecode(Qiv::TimePoints::TimeCode(2016, 3, 21, 14, 5, 9, 17, Rate(30), true));
    channel.LastUserTimecode(Qiv::TimePoints::TimeCode(2000, 2, 29, 23, 59, 59, 24, Rate(25), false));
    channel.PrimaryTimecodeType(TimecodePrimary::User);
    Duration remaining(40000000);
    channel.RemainingCapacity(remaining);
    channel.TotalCapacity(Duration(80000000));
}

void Fill(MediaOutput& channel)
{
    FillCommon(channel);
    channel.PlayingStatus(PlayingStatus::Cueing);
    channel.SpeedOnAir(Speed(-1, 2));
    channel.GlobalLoopMode(PlayingLoopMode::Bounce);
    Duration remaining(-7);
    channel.RemainingTime(remaining);
    channel.CurrentTimePointOnAir(TimePoint(-1));
    channel.TodTimecodeOnAir(Qiv::TimePoints::TimeCode(2261, 12, 31, 23, 59, 59, 59, Rate(60), true));
    channel.UserTimecodeOnAir(Qiv::TimePoints::TimeCode(1900, 1, 1, 0, 0, 0, 1, Rate(50), false));
    channel.PrimaryTimecodeType(TimecodePrimary::Tod);
    SequenceOutput sequence;
    Fill(sequence);
    channel.Sequence(sequence);
    channel.InBoundary(std::make_unique<BoundaryAbsolute>(TimePoint(5)));
    channel.OutBoundary(std::make_unique<BoundaryRelative>(BoundaryOrigin::RelativeToOppositeLoadBoundary, -25));
}

void Fill(SequenceOutput& sequence)
{
    SharedReference<Sequence> onAir(std::make_shared<Sequence>());
    Fill(*onAir);
    onAir.UpdateIdentifier();
    sequence.SequenceOnAir(onAir);
    SequenceOutput::AssetBlockOutput block;
    Fill(block);
    sequence.AssetBlockOnAir(block);
    sequence.NextAssetBlockOnAir(block);
    sequence.EditMode(true);
}

void Fill(SequenceOutput::AssetBlockOutput& block)
{
    block.Id(Identifier("old-block"));
    SharedReference<MediaAsset> asset;
    Fill(asset);
    block.MediaAssetRef(asset);
}

void Fill(std::unique_ptr<Boundary>& boundary)
{
    boundary = std::make_unique<BoundaryRelative>(BoundaryOrigin::RelativeToOppositeMediaBoundary, 100);
}

void Fill(Speed& speed)
{
    speed = Speed(3, 4);
}

void Fill(Node& node)
{
    node = Node(Identifier("old-node"), 7, "host", "10.0.0.1", {"10.0.0.2", ""}, "chassis", "A", "1.2");
}

void Fill(MetadataProfileDictionary& dictionary)
{
    const auto profile = std::make_shared<GenericMetadataProfile>(FullyQualifiedName("a"));
    profile->Set("b", "old value");
    profile->Set("", "value of the empty key");
    dictionary.Set(profile);
    const auto operatorProfile = std::make_shared<PelOperatorMetadataProfile>();
    operatorProfile->ServerId(1230);
    operatorProfile->Index(3);
    dictionary.Set(operatorProfile);
}

void Fill(SharedReference<MediaAsset>& reference)
{
    const auto asset = std::make_shared<MediaAsset>();
    Fill(*asset);
    reference = asset;
}

void Fill(MediaAsset& asset)
{
    asset.Id(Identifier("old-asset"));
    asset.Name("old asset name");
    asset.InPoint(TimePoint(10));
    asset.OutPoint(TimePoint(20));
}

void Fill(Sequence& sequence)
{
    sequence.Id(Identifier("old-sequence"));
    sequence.Name("old sequence name");
}

void Fill(TimePoint& point)
{
    point = TimePoint(30);
}

std::string Survival::Text(const std::string& text)
{
    changesText_ |= std::strlen(text.c_str()) != text.size();
    return WellFormed(text.c_str());
}

Qiv::TimePoints::TimeCode Survival::TimeCode(const Qiv::TimePoints::TimeCode& timeCode)
{
    constexpr std::int64_t highestRate = INT64_MAX / 86400 / (362 * 366); // beyond it counts of valid years wrap around
    Qiv::TimePoints::TimeCode result;
    if (timeCode.HasDate() && timeCode.Rate().Numerator() <= highestRate)
        return timeCode;
    changesText_ = true;
    static_cast<void>(Qiv::TimePoints::QivTimeCodeParser::TryRead(timeCode.ToString(), result));
    return result;
}

void Survival::ApplyToCommon(MediaIO& channel)
{
    channel.Id(Identifier(Text(channel.Id().Value())));
    channel.Name(Text(channel.Name()));
    auto asset = channel.MediaAssetOnAir();
    Apply(asset);
    channel.MediaAssetOnAir(asset);
    Apply(channel.Metadata());
}

void Survival::Apply(MediaInput& channel)
{
    ApplyToCommon(channel);
    channel.LastTodTimecode(TimeCode(channel.LastTodTimecode()));
    channel.LastUserTimecode(TimeCode(channel.LastUserTimecode()));
}

void Survival::Apply(MediaOutput& channel)
{
    ApplyToCommon(channel);
    channel.TodTimecodeOnAir(TimeCode(channel.TodTimecodeOnAir()));
    channel.UserTimecodeOnAir(TimeCode(channel.UserTimecodeOnAir()));
    if (channel.Sequence().HasValue())
    {
        auto sequence = *channel.Sequence();
        Apply(sequence);
        channel.Sequence(sequence);
    }
}

void Survival::Apply(SequenceOutput& sequence)
{
    auto onAir = sequence.SequenceOnAir();
    Apply(onAir);
    sequence.SequenceOnAir(onAir);
    auto block = sequence.AssetBlockOnAir();
    Apply(block);
    sequence.AssetBlockOnAir(block);
    if (sequence.NextAssetBlockOnAir().HasValue())
        Apply(*sequence.NextAssetBlockOnAir());
}

void Survival::Apply(SequenceOutput::AssetBlockOutput& block)
{
    block.Id(Identifier(Text(block.Id().Value())));
    auto asset = block.MediaAssetRef();
    Apply(asset);
    block.MediaAssetRef(asset);
}

void Survival::Apply(Node& node)
{
    std::vector<std::string> addresses;
    for (const auto& address : node.GbeIpAddresses())
        addresses.push_back(Text(address));
    node = Node(Identifier(Text(node.NodeId().Value())), node.SerialNumber(), Text(node.HostName()),
                Text(node.IpAddress()), addresses, Text(node.Chassis()), Text(node.HardwareRevision()),
                Text(node.TarvonelVersion()));
}

void Survival::Apply(MetadataProfileDictionary& dictionary)
{
    constexpr std::string_view reserved = "qiv.peloperator";
    MetadataProfileDictionary result;
    for (const auto& profile : dictionary.Values())
    {
        if (const auto* const generic = dynamic_cast<const GenericMetadataProfile*>(profile.get()))
        {
            const auto prefix = generic->FullyQualifiedName().Value() + '.';
            for (const auto& key : generic->Keys())
            {
                // Cut and mended names may change their places, meet others, or have no dot any more.
                const auto name = Text(prefix + key);
                changesText_ |= name != prefix + key;
                const auto dot = name.rfind('.');
                if (dot == std::string::npos || name.substr(0, dot).substr(0, reserved.size()) == reserved)
                    continue;
                const FullyQualifiedName space(name.substr(0, dot));
                if (!result.Contains(space))
                    result.Set(std::make_shared<GenericMetadataProfile>(space));
                dynamic_cast<GenericMetadataProfile&>(result[space]).Set(name.substr(dot + 1), Text(generic->Get(key)));
            }
            continue;
        }
        PelOperatorMetadataProfile copy(dynamic_cast<const PelOperatorMetadataProfile&>(*profile));
        changesText_ |= copy.Index() < 0;
        if (copy.Index() < 0 && copy.ServerId() == PelOperatorMetadataProfile::EmptyServerSerialNumber())
            continue;
        if (copy.Index() < 0)
            copy.Index(0);
        result.Set(std::make_shared<PelOperatorMetadataProfile>(copy));
    }
    dictionary = result;
}

template <typename T>
void Survival::Apply(SharedReference<T>& reference)
{
    if (reference.Pointer() == nullptr)
    {
        reference.Id(Identifier(Text(reference.Id().Value())));
        return;
    }
    auto object = std::make_shared<T>(*reference.Pointer());
    Apply(*object);
    reference = object;
}

template void Survival::Apply(SharedReference<MediaAsset>&);
template void Survival::Apply(SharedReference<Sequence>&);

void Survival::Apply(MediaAsset& asset)
{
    asset.Id(Identifier(Text(asset.Id().Value())));
    asset.Name(Text(asset.Name()));
}

void Survival::Apply(Sequence& sequence)
{
    sequence.Id(Identifier(Text(sequence.Id().Value())));
    sequence.Name(Text(sequence.Name()));
}

} // namespace Fuzz
