#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace Qiv::Tests
{
namespace
{

using TimePoints::Rate;

SharedReference<MediaAsset> AssetNamed(const std::string& id, const std::string& name, TimePoint inPoint = {},
                                       TimePoint outPoint = {})
{
    const auto asset = std::make_shared<MediaAsset>();
    asset->Id(Identifier(id));
    asset->Name(name);
    asset->InPoint(inPoint);
    asset->OutPoint(outPoint);
    return asset;
}

void SetMetadata(MediaIO& channel, std::int32_t server, std::int32_t index,
                 const std::map<std::string, std::pair<std::string, std::string>>& profiles)
{
    const auto forOperator = std::make_shared<PelOperatorMetadataProfile>();
    forOperator->ServerId(server);
    forOperator->Index(index);
    channel.Metadata().Set(forOperator);
    for (const auto& [name, entry] : profiles)
    {
        const auto profile = std::make_shared<GenericMetadataProfile>(FullyQualifiedName(name));
        profile->Set(entry.first, entry.second);
        channel.Metadata().Set(profile);
    }
}

const TimeCode timeCode(2016, 3, 21, 14, 5, 9, 17, Rate(25), false);

// Set member by member, so that a reader and a writer that take the same member for another one are seen.
TEST(Writers, WriteARecorderOfWhichEveryMemberIsSet)
{
    MediaInput recorder;
    recorder.Id(Identifier("c1"));
    recorder.Name("Cam \"A\" \xC3\xA9");
    recorder.MediaAssetOnAir(AssetNamed("a1", "Goal", TimePoint(-1), TimePoint(INT64_MAX)));
    SetMetadata(recorder, 1230, 7, {{"a", {"b", "1"}}, {"a.b", {"c", "2"}}, {"z", {"", "\x01"}}});
    recorder.RecordingStatus(RecordingStatus::Recording);
    recorder.LastTimePoint(TimePoint(1458569109680000000));
    recorder.LastTodTimecode(timeCode);
    recorder.LastUserTimecode(TimeCode(2016, 3, 21, 0, 10, 0, 0, Rate(30), true));
    recorder.PrimaryTimecodeType(TimecodePrimary::User);
    recorder.TotalCapacity(Duration(7200000000000));
    Duration remaining(3600000000000);
    recorder.RemainingCapacity(remaining);
    EXPECT_EQ(Written(recorder), fullInput);
    EXPECT_EQ(FromText<MediaInput>(fullInput), recorder);
}

TEST(Writers, WriteAPlayerOfWhichEveryMemberIsSet)
{
    const auto sequence = std::make_shared<Sequence>();
    sequence->Id(Identifier("s1"));
    sequence->Name("Highlights");
    SequenceOutput::AssetBlockOutput block;
    block.Id(Identifier("b1"));
    block.MediaAssetRef(AssetNamed("a1", "Goal", TimePoint(-1), TimePoint(INT64_MAX)));
    SequenceOutput sequenceOutput;
    sequenceOutput.SequenceOnAir(SharedReference<Sequence>(sequence));
    sequenceOutput.AssetBlockOnAir(block);
    sequenceOutput.NextAssetBlockOnAir(SequenceOutput::AssetBlockOutput());
    sequenceOutput.EditMode(true);

    MediaOutput player;
    player.Id(Identifier("c2"));
    player.Name("P");
    player.MediaAssetOnAir(AssetNamed("a2", "Foul"));
    SetMetadata(player, 20, 0, {{"a", {"b", "1"}}});
    player.PlayingStatus(PlayingStatus::Playing);
    player.SpeedOnAir(Speed(-3, 2));
    player.GlobalLoopMode(PlayingLoopMode::Bounce);
    Duration remaining(-40000000);
    player.RemainingTime(remaining);
    player.CurrentTimePointOnAir(TimePoint(0));
    player.TodTimecodeOnAir(timeCode);
    player.UserTimecodeOnAir(TimeCode::Empty() + 1);
    player.PrimaryTimecodeType(TimecodePrimary::Tod);
    player.Sequence(sequenceOutput);
    player.InBoundary(std::make_unique<BoundaryAbsolute>(TimePoint(5)));
    player.OutBoundary(std::make_unique<BoundaryRelative>(BoundaryOrigin::RelativeToOppositeLoadBoundary, -25));
    EXPECT_EQ(Written(player), fullOutput);
    EXPECT_EQ(FromText<MediaOutput>(fullOutput), player);
}

TEST(Writers, WriteNodesAndSpeeds)
{
    EXPECT_EQ(Written(Node(Identifier("n1"), -2, "srv", "10.0.0.1", {"10.0.1.2", "10.0.1.1"}, "6U", "B2", "1.2.3")),
              fullNode);
    EXPECT_EQ(Written(Speed(INT32_MIN, UINT32_MAX)), R"({"_type":"Speed","numerator":-2147483648,"denominator":-1})");
    Stringer members;
    members.Object().Key("before").Value(1);
    EXPECT_TRUE(NodeToJsonConverter().AppendNode(members, Node()));
    EXPECT_EQ(members.CloseObject().ToString(), R"({"before":1,"_type":"Node","id":""})");
}

TEST(Writers, WriteStrangeValues)
{
    MediaInput channel;
    channel.Id(Identifier(std::string("a\0b", 3)));
    channel.Name(std::string("\0b", 2));
    SharedReference<MediaAsset> withoutIdentifier(std::make_shared<MediaAsset>());
    channel.MediaAssetOnAir(withoutIdentifier);
    channel.Metadata().Set(FullyQualifiedName("a"), nullptr);
    channel.RecordingStatus(static_cast<RecordingStatus>(7));
    channel.LastTodTimecode(TimeCode(10, 0, 0, 0, Rate(25), false));
    channel.LastUserTimecode(TimeCode(0, false, Rate(50), false)); // the empty one but for its date
    EXPECT_EQ(Written(channel),
              R"({"_type":"MediaInput","id":"a","name":"","metadata":{},"recordingStatus":"Unknown",)"
              R"("lastTodTimecode":"-1-0-1-0-1T10:00:00:00@25","lastUserTimecode":"-1-0-1-0-1T00:00:00:00@50"})");
}

struct ForeignProfile : GenericMetadataProfile
{
    using GenericMetadataProfile::GenericMetadataProfile;
    BusinessEntityModel::BaseTypes::FullyQualifiedName FullyQualifiedName() const override { return {"own.name"}; }
};
struct OtherProfile : MetadataProfile
{
    BusinessEntityModel::BaseTypes::FullyQualifiedName FullyQualifiedName() const override { return {"b"}; }
    bool Equals(const MetadataProfile&) const override { return false; }
    std::shared_ptr<MetadataProfile> Clone() const override { return nullptr; }
};

TEST(MetadataProfileDictionaryToJsonConverter, WritesProfilesUnderTheirOwnNames)
{
    MetadataProfileDictionary dictionary;
    const auto own = std::make_shared<ForeignProfile>();
    own->Set("k", "v");
    dictionary.Set(FullyQualifiedName("a"), own);
    dictionary.Set(std::make_shared<OtherProfile>()); // of no kind that is written
    dictionary.Set(FullyQualifiedName("c"), nullptr);
    PelOperatorMetadataProfile empty;
    empty.Index(-1);
    dictionary.Set(std::make_shared<PelOperatorMetadataProfile>(empty));
    EXPECT_EQ(Written(dictionary), R"({"own.name.k":"v"})");
}

/// Claims a kind or an origin that its class does not have.
struct StrangeChannel : MediaIO
{
    Mode GetMode() const override { return static_cast<Mode>(7); }
};
struct StrangeBoundary : Boundary
{
    explicit StrangeBoundary(BoundaryOrigin origin) : claimed(origin) {}
    BoundaryOrigin Origin() const override { return claimed; }
    std::unique_ptr<Boundary> Clone() const override { return std::make_unique<StrangeBoundary>(*this); }
    bool Equals(const Boundary&) const override { return false; }
    bool IsEmpty() const override { return false; }
    BoundaryOrigin claimed;
};

TEST(Writers, RefuseWhatIsOfNoKind)
{
    StrangeChannel channel;
    channel.Name("kept");
    EXPECT_EQ(Written(channel), "{} | Unsupported MediaIO type - should be MediaInput or MediaOutput");
    for (const auto* const type : {"MediaInput", "MediaOutput"})
        EXPECT_FALSE(
            JsonToMediaIOConverter().To(Parse(std::string(R"({"name":"x","_type":")") + type + "\"}"), channel));
    EXPECT_EQ(channel.Name(), "kept");

    EXPECT_EQ(Written(BoundaryRelative(BoundaryOrigin::Absolute, 1)), "{} | Null BoundaryAbsolute");
    EXPECT_EQ(Written(StrangeBoundary(BoundaryOrigin::Absolute)), "{} | Null BoundaryAbsolute");
    EXPECT_EQ(Written(StrangeBoundary(BoundaryOrigin::RelativeToOppositeMediaBoundary)), "{} | Null BoundaryRelative");
    MediaOutput output;
    output.InBoundary(std::make_unique<StrangeBoundary>(BoundaryOrigin::Absolute));
    output.OutBoundary(output.InBoundary()->Clone());
    EXPECT_EQ(Written(output), R"({"_type":"MediaOutput","playingStatus":"Idle","inBoundary":{},"outBoundary":{}})");
}

/// Writes marks instead of time points, and reports a failure when it has a text for it.
struct Injected : ToJsonConverter<TimePoint>
{
    Injected(bool writes, Result reported) : isWriting(writes), result(std::move(reported)) {}
    Result To(const TimePoint& timePoint, Stringer& stringer) const override
    {
        if (isWriting)
            stringer.Value(static_cast<std::int32_t>(timePoint.Nanoseconds() % 1000));
        return result;
    }
    bool isWriting;
    Result result;
};

/// What a writer makes of the entity that a case holds, whose text it is when it says "unchanged".
template <typename Entity, typename Writer = WriterOf<Entity>, typename Reader = ReaderOf<Entity>>
Check Writing(Writer writer = Writer(), const Reader& reader = Reader())
{
    return [=](const Case& each)
    {
        static const std::map<std::string, std::shared_ptr<Injected>> timePoints = {
            {"marked", std::make_shared<Injected>(true, Result())},
            {"failing", std::make_shared<Injected>(true, "no time points here")},
            {"silent", std::make_shared<Injected>(false, "silent")}};
        auto used = writer;
        if constexpr (std::is_constructible_v<Writer, std::shared_ptr<Injected>>)
            if (each.Has("timePoints"))
                used = Writer(timePoints.at(each.Text("timePoints")));

        const auto holds = Followed(each.JsonText("holds"));
        Entity entity{};
        Read(holds, entity, reader);
        auto& value = [&]() -> auto&
        {
            if constexpr (std::is_same_v<Entity, std::unique_ptr<Boundary>>)
                return *entity;
            else
                return entity;
        }
        ();
        for (const bool asTemporary : {false, true})
        {
            Stringer stringer;
            const auto result =
                asTemporary ? used.To(std::move(value), stringer) : used.To(std::as_const(value), stringer);
            EXPECT_STREQ(result.ErrorMessage(), each.Text("message").c_str());
            EXPECT_EQ(result, !each.Has("message"));
            EXPECT_EQ(Parse(stringer.ToString()).toStyledString(), After(each, holds).toStyledString());
            if (!each.Has("changes"))
            {
                EXPECT_EQ(stringer.ToString(), holds);
            }
            EXPECT_STREQ(used.GetLastConversionError(), "");
        }
    };
}

void CheckWriters(const Case& each)
{
    const JsonToSharedReference<MediaAsset> referenceReader("MediaAssetRef", "mediaAsset",
                                                            std::make_shared<JsonToMediaAssetConverter>());
    const SharedReferenceToJson<MediaAsset, false> referenceWriter("MediaAssetRef", "mediaAsset",
                                                                   std::make_shared<MediaAssetToJsonConverter>());
    const std::map<std::string, Check> writers = {
        {"TimePoint", Writing<TimePoint>()},
        {"MediaAsset", Writing<MediaAsset>()},
        {"Sequence", Writing<Sequence>()},
        {"MediaAssetReference", Writing<SharedReference<MediaAsset>>(referenceWriter, referenceReader)},
        {"Speed", Writing<Speed>()},
        {"Boundary", Writing<std::unique_ptr<Boundary>>()},
        {"SequenceOutput", Writing<SequenceOutput>()},
        {"Metadata", Writing<MetadataProfileDictionary>()},
        {"Node", Writing<Node>()},
        {"MediaInput", Writing<MediaInput>(MediaInputToJsonConverter())},
        {"MediaOutput", Writing<MediaOutput>(MediaOutputToJsonConverter())},
        {"MediaInput by MediaIO", Writing<MediaInput>()},
        {"MediaOutput by MediaIO", Writing<MediaOutput>()},
    };
    EachConverter(each, "writers", writers);
}
const bool areRegistered = RegisterFolder("writers", CheckWriters);

TEST(SharedReferenceToJson, FailsAsTheWriterOfTheObjectDoes)
{
    const SharedReferenceToJson<MediaAsset, false> references(
        "MediaAssetRef", "mediaAsset",
        std::make_shared<MediaAssetToJsonConverter>(std::make_shared<Injected>(true, "no time points here")));
    EXPECT_EQ(
        Written(AssetNamed("a1", "Goal", TimePoint(-1)), references),
        R"({"_type":"MediaAssetRef","id":"a1","mediaAsset":{"_type":"MediaAsset","id":"a1","name":"Goal","inPoint":-1}} | no time points here)");
}

} // namespace
} // namespace Qiv::Tests
