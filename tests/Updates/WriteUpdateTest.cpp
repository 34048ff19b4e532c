#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/WriteUpdate.h>

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/Clone.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/HaveEqualContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include "Converters/ModelGenerator.h"

#include <gtest/gtest.h>
#include <json/writer.h>

#include <functional>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace Qiv::Tests
{
namespace
{

using namespace DataModel::Tarvonel::Serialization::Json;
using namespace DataModel::Tarvonel::Serialization::Json::Documents;
using namespace DataModel::Tarvonel::Serialization::Json::Updates;
using DataModel::Tarvonel::Serialization::Json::Channels::Clone;

using Channel = std::unique_ptr<MediaIO>;

Channel ChannelOf(const Json::Value& document)
{
    const auto isInput = document["_type"] == "MediaInput";
    auto channel = isInput ? Channel(std::make_unique<MediaInput>()) : Channel(std::make_unique<MediaOutput>());
    const auto result = ReadSnapshotText(document.toStyledString(), *channel);
    if (!result)
        throw std::runtime_error(result.ErrorMessage());
    return channel;
}

Channel Merged(const MediaIO& before, const std::string& update)
{
    auto channel = Clone(before);
    EXPECT_TRUE(MergeText(update, *channel)) << update;
    return channel;
}

/// What holds of every update. Returns what it could not say.
std::vector<Omission> ExpectRightUpdate(const MediaIO& before, const MediaIO& after)
{
    Stringer stringer;
    const auto result = WriteUpdate(before, after, stringer);
    const auto update = stringer.ToString();
    SCOPED_TRACE("before " + ToText(before) + "\nafter  " + ToText(after) + "\nupdate " + update);
    EXPECT_EQ(result.ErrorMessage(), "");
    const auto merged = Merged(before, update);
    EXPECT_EQ(HaveEqualContent(*merged, after), result.Omissions().empty()) << ToText(*merged);
    EXPECT_EQ(static_cast<bool>(result), result.Omissions().empty());
    EXPECT_EQ(result.HasChanges(), !HaveEqualContent(before, after));

    // No member is there in vain.
    const auto document = Parse(update);
    const auto expectDifference = [&](const Json::Value& without, const std::string& key)
    { EXPECT_FALSE(HaveEqualContent(*Merged(before, without.toStyledString()), *merged)) << key; };
    for (const auto& key : document.getMemberNames())
    {
        auto without = document;
        without.removeMember(key);
        if (key != "_type" && key != "id")
            expectDifference(without, key);
    }
    for (const auto& key : document["metadata"].getMemberNames())
    {
        auto without = document;
        without["metadata"].removeMember(key);
        expectDifference(without, key);
    }
    return result.Omissions();
}

/// Each member from one of two documents, or from none.
Json::Value Mixed(const Json::Value& left, const Json::Value& right, ModelGenerator& generator)
{
    auto mixed = left;
    for (const auto& key : right.getMemberNames())
        if (generator.Below(3) == 0)
            mixed[key] = right[key];
    for (const auto& key : left.getMemberNames())
        if (key[0] != '_' && key != "id" && generator.Below(6) == 0)
            mixed.removeMember(key);
    return mixed;
}

std::shared_ptr<GenericMetadataProfile> Profile(const std::string& name, const std::string& key = {},
                                                const std::string& value = {})
{
    auto profile = std::make_shared<GenericMetadataProfile>(FullyQualifiedName(name));
    if (!key.empty())
        profile->Set(key, value);
    return profile;
}

std::shared_ptr<PelOperatorMetadataProfile> Operator(std::int32_t serverId, std::int32_t index)
{
    auto profile = std::make_shared<PelOperatorMetadataProfile>();
    profile->ServerId(serverId);
    profile->Index(index);
    return profile;
}

SharedReference<MediaAsset> Reference(const std::string& id, const std::string& assetId, const std::string& name = {})
{
    auto asset = std::make_shared<MediaAsset>();
    asset->Id(Identifier(assetId));
    asset->Name(name);
    SharedReference<MediaAsset> reference(std::move(asset));
    reference.Id(Identifier(id));
    return reference;
}

using namespace std::string_literals;

/// What entities can hold and documents can't, or only in another form.
const std::vector<std::function<void(MediaIO&)>> commonChanges = {
    [](MediaIO& channel) { channel.Name("a\0b"s); },
    [](MediaIO& channel) { channel.Name("a"s); },
    [](MediaIO& channel) { channel.Name("\0"s); },
    [](MediaIO& channel) { channel.Name("\xC3"s); },
    [](MediaIO& channel) { channel.Name("\xEF\xBF\xBD"s); },
    [](MediaIO& channel) { channel.MediaAssetOnAir(Reference("r", "a")); },
    [](MediaIO& channel) { channel.MediaAssetOnAir(Reference("", "")); },
    [](MediaIO& channel) { channel.MediaAssetOnAir(Reference("", "a")); },
    [](MediaIO& channel) { channel.MediaAssetOnAir(Reference("a1", "a1", "\0"s)); },
    [](MediaIO& channel) { channel.MediaAssetOnAir(Reference("a1", "a1", "Goal")); },
    [](MediaIO& channel) { channel.Metadata().Clear(); },
    [](MediaIO& channel) { channel.Metadata().Set(Profile("a")); },
    [](MediaIO& channel) { channel.Metadata().Set(Profile("a", "b", "v")); },
    [](MediaIO& channel) { channel.Metadata().Set(Profile("a", "b.c", "v")); },
    [](MediaIO& channel) { channel.Metadata().Set(Profile("a.b", "c", "v")); },
    [](MediaIO& channel) { channel.Metadata().Set(Profile("a", "b", "v\0w"s)); },
    [](MediaIO& channel) { channel.Metadata().Set(Profile("a", "b\0"s, "v")); },
    [](MediaIO& channel) { channel.Metadata().Set(Profile("\xFF", "b", "v")); },
    [](MediaIO& channel) { channel.Metadata().Set(FullyQualifiedName("a"), Profile("b", "c", "v")); },
    [](MediaIO& channel) { channel.Metadata().Set(FullyQualifiedName("a"), nullptr); },
    [](MediaIO& channel) { channel.Metadata().Set(FullyQualifiedName("qiv.peloperator"), nullptr); },
    [](MediaIO& channel) { channel.Metadata().Set(Profile("qiv.peloperator", "index", "v")); },
    [](MediaIO& channel) { channel.Metadata().Set(Profile("qiv.peloperator.x", "y", "v")); },
    [](MediaIO& channel) { channel.Metadata().Set(Operator(0, -1)); },
    [](MediaIO& channel) { channel.Metadata().Set(Operator(0, 0)); },
    [](MediaIO& channel) { channel.Metadata().Set(Operator(0, -7)); },
    [](MediaIO& channel) { channel.Metadata().Set(Operator(10, -1)); },
    [](MediaIO& channel) { channel.Metadata().Set(Operator(20, 0)); },
    [](MediaIO& channel) { channel.Metadata().Set(Operator(15, 3)); },
    [](MediaIO& channel) { channel.Metadata().Set(FullyQualifiedName("a"), Operator(10, 1)); },
};
const std::vector<std::function<void(MediaInput&)>> inputChanges = {
    [](MediaInput& channel) { channel.RecordingStatus(static_cast<RecordingStatus>(7)); },
    [](MediaInput& channel) { channel.RecordingStatus(static_cast<RecordingStatus>(8)); },
    [](MediaInput& channel) { channel.PrimaryTimecodeType(static_cast<TimecodePrimary>(7)); },
    [](MediaInput& channel) { channel.LastTodTimecode(TimeCode(10, 0, 0, 0, TimePoints::Rate(25), false)); },
    [](MediaInput& channel) { channel.LastTodTimecode(TimeCode(1, false, TimePoints::Rate(25, 2), true)); },
    [](MediaInput& channel) { channel.LastTodTimecode(TimeCode(1, false, TimePoints::Rate(25), true)); },
    [](MediaInput& channel) { channel.LastTodTimecode(TimeCode(-1, false, TimePoints::Rate(25), true)); },
    [](MediaInput& channel) { channel.LastTodTimecode(TimeCode(0, false, TimePoints::Rate(50, 2), true)); },
    [](MediaInput& channel) { channel.LastUserTimecode(TimeCode(1, false, TimePoints::Rate(0), false)); },
};
const std::vector<std::function<void(MediaOutput&)>> outputChanges = {
    [](MediaOutput& channel) { channel.GlobalLoopMode(static_cast<PlayingLoopMode>(7)); },
    [](MediaOutput& channel) { channel.SpeedOnAir(Speed(5, 0)); },
    [](MediaOutput& channel) { channel.SpeedOnAir(Speed(1, 2)); },
    [](MediaOutput& channel) { channel.SpeedOnAir(Speed(2, 4)); },
    [](MediaOutput& channel) { channel.InBoundary(std::make_unique<BoundaryRelative>(BoundaryOrigin::Absolute, 5)); },
    [](MediaOutput& channel)
    { channel.InBoundary(std::make_unique<BoundaryRelative>(static_cast<BoundaryOrigin>(7), 5)); },
    [](MediaOutput& channel)
    { channel.InBoundary(std::make_unique<BoundaryRelative>(static_cast<BoundaryOrigin>(8), 5)); },
    [](MediaOutput& channel)
    {
        SequenceOutput sequence;
        SequenceOutput::AssetBlockOutput block;
        block.MediaAssetRef(Reference("", "a"));
        sequence.NextAssetBlockOnAir(block);
        channel.Sequence(sequence);
    },
    [](MediaOutput& channel)
    {
        SequenceOutput sequence;
        auto edit = std::make_shared<Sequence>();
        edit->Name("nameless");
        sequence.SequenceOnAir(SharedReference<Sequence>(edit));
        channel.Sequence(sequence);
    },
};

void Change(MediaIO& channel, ModelGenerator& generator)
{
    const auto apply = [&](const auto& changes, auto& target) { changes[generator.Below(changes.size())](target); };
    for (auto count = generator.Below(4); count > 0; --count)
    {
        if (generator.Below(2) == 0)
            apply(commonChanges, channel);
        else if (channel.GetMode() == MediaIO::Mode::Input)
            apply(inputChanges, static_cast<MediaInput&>(channel));
        else
            apply(outputChanges, static_cast<MediaOutput&>(channel));
    }
}

TEST(WriteUpdate, SaysAllThatMergingBringsAboutAndNothingElse)
{
    std::set<std::string> sentences;
    ModelGenerator generator(1);
    for (int i = 0; i < 3000 && !HasFailure(); ++i)
    {
        const auto kind = i % 2 == 0 ? "MediaInput" : "MediaOutput";
        const auto left = Parse(generator.Document(kind));
        const auto right = Parse(generator.Document(kind));
        const auto before = ChannelOf(left);
        const auto after = ChannelOf(Mixed(left, right, generator));
        if (i % 3 != 0)
        {
            Change(*before, generator);
            Change(*after, generator);
        }
        after->Id(before->Id());
        for (const auto& omission : ExpectRightUpdate(*before, *after))
            sentences.insert(omission.sentence);
    }
    EXPECT_EQ(sentences.size(), 16U) << "not every kind of omission was tried";
}

} // namespace
} // namespace Qiv::Tests
