#include <Changes.h>

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

namespace Fuzz
{

using namespace Qiv::BusinessEntityModel::BaseTypes;
using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using Name = Qiv::BusinessEntityModel::BaseTypes::FullyQualifiedName;
using Qiv::BusinessEntityModel::Edits::Sequence;
using Qiv::DataModel::MediaAssets::MediaAsset;
using Qiv::DataModel::MediaAssets::TimecodePrimary;
using Qiv::TimePoints::Duration;
using Qiv::TimePoints::Rate;
using Qiv::TimePoints::TimeCode;
using Qiv::TimePoints::TimePoint;

namespace
{

/// A profile of another library.
class ForeignProfile : public MetadataProfile
{
public:
    explicit ForeignProfile(std::string name) : name_(std::move(name)) {}
    Name FullyQualifiedName() const override { return name_; }
    bool Equals(const MetadataProfile& other) const override
    {
        const auto* const foreign = dynamic_cast<const ForeignProfile*>(&other);
        return foreign != nullptr && foreign->name_ == name_;
    }
    std::shared_ptr<MetadataProfile> Clone() const override { return std::make_shared<ForeignProfile>(*this); }

private:
    std::string name_;
};

/// A boundary of another library.
class ForeignBoundary : public Boundary
{
public:
    ForeignBoundary(BoundaryOrigin origin, bool isEmpty) : origin_(origin), isEmpty_(isEmpty) {}
    BoundaryOrigin Origin() const override { return origin_; }
    std::unique_ptr<Boundary> Clone() const override { return std::make_unique<ForeignBoundary>(*this); }
    bool Equals(const Boundary& other) const override
    {
        const auto* const foreign = dynamic_cast<const ForeignBoundary*>(&other);
        return foreign != nullptr && foreign->origin_ == origin_ && foreign->isEmpty_ == isEmpty_;
    }
    bool IsEmpty() const override { return isEmpty_; }

private:
    BoundaryOrigin origin_;
    bool isEmpty_;
};

std::string TextFrom(Input& input)
{
    return std::string(input.Text(input.Byte() % 8));
}

/// The name of a profile or a key, mostly one of a few, so that they meet.
std::string NameFrom(Input& input)
{
    constexpr const char* names[] = {"a", "a.b", "b", "", "qiv.peloperator", "qiv.peloperator.x"};
    const auto choice = input.Byte() % 8U;
    return choice < std::size(names) ? names[choice] : TextFrom(input);
}

/// Mostly a small one.
std::int64_t NumberFrom(Input& input)
{
    return input.Byte() % 4 != 0 ? input.Number<std::int8_t>() : input.Number<std::int64_t>();
}

template <typename Enumeration>
Enumeration EnumeratorFrom(Input& input)
{
    return static_cast<Enumeration>(input.Byte() % 8);
}

TimeCode TimeCodeFrom(Input& input)
{
    constexpr int rates[] = {25, 30, 50, 60, 100};
    const auto choice = input.Byte();
    const auto rate = rates[input.Byte() % std::size(rates)];
    const bool isDrop = (choice & 4U) != 0 && rate % 30 == 0;
    const bool isOther = (choice & 8U) != 0;
    switch (choice % 4)
    {
    case 0:
    {
        const auto samples = NumberFrom(input);
        const auto numerator = NumberFrom(input);
        return TimeCode(samples, (choice & 4U) != 0, Rate(numerator, NumberFrom(input)), isOther);
    }
    case 1:
        return TimeCode(input.Number<std::uint32_t>(), isDrop, Rate(rate, isOther ? 2 : 1), true);
    case 2: // mostly of a day, beyond which a time code without date has no text
        return TimeCode(0, 0, 0, 0, Rate(rate), isDrop) + input.Number<std::uint32_t>() % 2'500'000;
    default:
        return TimeCode::Empty();
    }
}

void Dress(MediaAsset& asset, Input& input)
{
    asset.InPoint(TimePoint(NumberFrom(input)));
    asset.OutPoint(TimePoint(NumberFrom(input)));
}

void Dress(Sequence&, Input&) {}

template <typename Entity>
SharedReference<Entity> ReferenceFrom(Input& input)
{
    SharedReference<Entity> reference;
    const auto choice = input.Byte();
    if ((choice & 1U) != 0)
    {
        const auto object = std::make_shared<Entity>();
        object->Id(Identifier(TextFrom(input)));
        object->Name(TextFrom(input));
        Dress(*object, input);
        reference = object;
    }
    if ((choice & 2U) != 0)
        reference.Id(Identifier(TextFrom(input)));
    return reference;
}

SequenceOutput::AssetBlockOutput BlockFrom(Input& input)
{
    SequenceOutput::AssetBlockOutput block;
    block.Id(Identifier(TextFrom(input)));
    block.MediaAssetRef(ReferenceFrom<MediaAsset>(input));
    return block;
}

void ChangeSequence(MediaOutput& channel, Input& input)
{
    const auto choice = input.Byte() % 8;
    if (choice == 0)
        return channel.ClearSequence();
    auto sequence = channel.Sequence().HasValue() ? *channel.Sequence() : SequenceOutput();
    switch (choice)
    {
    case 1:
        sequence.SequenceOnAir(ReferenceFrom<Sequence>(input));
        break;
    case 2:
        sequence.AssetBlockOnAir(BlockFrom(input));
        break;
    case 3:
        sequence.NextAssetBlockOnAir(BlockFrom(input));
        break;
    case 4:
        sequence.NextAssetBlockOnAir().Undefine();
        break;
    default:
        sequence.EditMode(choice % 2 == 0);
    }
    channel.Sequence(std::move(sequence));
}

std::unique_ptr<Boundary> BoundaryFrom(Input& input)
{
    const auto choice = input.Byte() % 4;
    if (choice == 0)
        return std::make_unique<BoundaryAbsolute>(TimePoint(NumberFrom(input)));
    const auto origin = EnumeratorFrom<BoundaryOrigin>(input);
    if (choice == 1)
        return std::make_unique<ForeignBoundary>(origin, input.Byte() % 2 == 0);
    return choice == 2 ? nullptr : std::make_unique<BoundaryRelative>(origin, input.Number<std::int8_t>());
}

std::shared_ptr<PelOperatorMetadataProfile> OperatorFrom(Input& input)
{
    const auto profile = std::make_shared<PelOperatorMetadataProfile>();
    profile->ServerId(input.Number<std::int8_t>() * (input.Byte() % 4 == 0 ? 1 : 10));
    profile->Index(input.Number<std::int8_t>());
    return profile;
}

void ChangeMetadata(MetadataProfileDictionary& metadata, Input& input)
{
    const auto choice = input.Byte() % 16;
    const Name name(NameFrom(input));
    switch (choice)
    {
    case 0:
        metadata.Clear();
        return;
    case 1:
        metadata.Erase(name);
        return;
    case 2:
        return metadata.Set(name, nullptr);
    case 3:
        return metadata.Set(name, std::make_shared<ForeignProfile>(name.Value()));
    case 4:
        return metadata.Set(name, OperatorFrom(input));
    case 5:
    case 6:
        return metadata.Set(OperatorFrom(input));
    case 7: // mostly under another name than its own
        return metadata.Set(name, std::make_shared<GenericMetadataProfile>(NameFrom(input)));
    default:
        break;
    }
    const auto found = metadata.Find(name.Value());
    auto profile = std::dynamic_pointer_cast<GenericMetadataProfile>(found);
    if (profile == nullptr)
        metadata.Set(profile = std::make_shared<GenericMetadataProfile>(name));
    if (choice == 8)
        profile->Erase(NameFrom(input));
    else
    {
        auto key = NameFrom(input);
        profile->Set(std::move(key), TextFrom(input));
    }
}

void ChangeInput(MediaInput& channel, int member, Input& input)
{
    switch (member)
    {
    case 0:
        return channel.RecordingStatus(EnumeratorFrom<RecordingStatus>(input));
    case 1:
        return channel.LastTimePoint(TimePoint(NumberFrom(input)));
    case 2:
        return channel.LastTodTimecode(TimeCodeFrom(input));
    case 3:
        return channel.LastUserTimecode(TimeCodeFrom(input));
    case 4:
        return channel.PrimaryTimecodeType(EnumeratorFrom<TimecodePrimary>(input));
    case 5:
    case 6:
    {
        Duration remaining(NumberFrom(input));
        return channel.RemainingCapacity(remaining);
    }
    default:
        return channel.TotalCapacity(Duration(NumberFrom(input)));
    }
}

void ChangeOutput(MediaOutput& channel, int member, Input& input)
{
    switch (member)
    {
    case 0:
        return channel.PlayingStatus(EnumeratorFrom<PlayingStatus>(input));
    case 1:
    {
        const auto numerator = input.Number<std::int8_t>();
        return channel.SpeedOnAir(Speed(numerator, input.Number<std::uint8_t>()));
    }
    case 2:
        return channel.GlobalLoopMode(EnumeratorFrom<PlayingLoopMode>(input));
    case 3:
    {
        Duration remaining(NumberFrom(input));
        return channel.RemainingTime(remaining);
    }
    case 4:
        return channel.CurrentTimePointOnAir(TimePoint(NumberFrom(input)));
    case 5:
        return channel.TodTimecodeOnAir(TimeCodeFrom(input));
    case 6:
        return channel.UserTimecodeOnAir(TimeCodeFrom(input));
    case 7:
        return channel.PrimaryTimecodeType(EnumeratorFrom<TimecodePrimary>(input));
    case 8:
        return channel.InBoundary(BoundaryFrom(input));
    case 9:
        return channel.OutBoundary(BoundaryFrom(input));
    default:
        return ChangeSequence(channel, input);
    }
}

} // namespace

void Change(MediaIO& channel, Input& input)
{
    const auto member = input.Byte() % 20;
    if (member == 0)
        channel.Name(TextFrom(input));
    else if (member == 1)
        channel.MediaAssetOnAir(ReferenceFrom<MediaAsset>(input));
    else if (member < 8)
        ChangeMetadata(channel.Metadata(), input);
    else if (channel.GetMode() == MediaIO::Mode::Input)
        ChangeInput(static_cast<MediaInput&>(channel), member - 8, input);
    else
        ChangeOutput(static_cast<MediaOutput&>(channel), member - 8, input);
}

} // namespace Fuzz
