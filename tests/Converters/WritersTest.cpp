#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

namespace Qiv::Tests
{
namespace
{

using TimePoints::Rate;

bool IsFull(const SharedReference<MediaAsset>& reference)
{
    const auto& asset = *reference.Pointer();
    return reference.Id() == Identifier("a1") && asset.Id() == Identifier("a1") && asset.Name() == "Goal" &&
           asset.InPoint() == TimePoint(-1) && asset.OutPoint() == TimePoint(INT64_MAX);
}

bool IsFull(const SequenceOutput& output)
{
    const auto sequence = output.SequenceOnAir().Pointer();
    return sequence->Id() == Identifier("s1") && sequence->Name() == "Highlights" && output.EditMode() &&
           output.AssetBlockOnAir().Id() == Identifier("b1") && IsFull(output.AssetBlockOnAir().MediaAssetRef()) &&
           output.NextAssetBlockOnAir() == SequenceOutput::AssetBlockOutput();
}

bool HoldsFullCommonMembers(const MediaIO& channel)
{
    const auto generic = [&](const char* name)
    { return dynamic_cast<const GenericMetadataProfile&>(*channel.Metadata().Find(name)); };
    const auto& forOperator =
        dynamic_cast<const PelOperatorMetadataProfile&>(*channel.Metadata().Find("qiv.peloperator"));
    return channel.Id() == Identifier("c1") && channel.Name() == "Cam \"A\" \xC3\xA9" &&
           IsFull(channel.MediaAssetOnAir()) && forOperator.ServerId() == 1230 && forOperator.Index() == 7 &&
           generic("a").Get("b") == "1" && generic("a.b").Get("c") == "2" && generic("z").Get("") == "\x01";
}

const TimeCode fullTimeCode(2016, 3, 21, 14, 5, 9, 17, Rate(25), false);

struct Writers : testing::Test
{
    const MediaInput fullRecorder = FromText<MediaInput>(fullInput);
    const MediaOutput fullPlayer = FromText<MediaOutput>(fullOutput);
};

template <typename Entity, typename Writer = WriterOf<Entity>>
void ExpectText(const Entity& entity, const std::string& text, const Writer& writer = Writer())
{
    EXPECT_EQ(Written(entity, writer), text);
    EXPECT_TRUE(FromText<Entity>(text) == entity);
    Stringer stringer;
    EXPECT_TRUE(writer.To(Entity(entity), stringer)); // a temporary
    EXPECT_EQ(stringer.ToString(), text);
    EXPECT_STREQ(writer.GetLastConversionError(), "");
}

TEST_F(Writers, WriteFullEntities)
{
    EXPECT_TRUE(HoldsFullCommonMembers(fullRecorder) && HoldsFullCommonMembers(fullPlayer));
    EXPECT_TRUE(fullRecorder.RecordingStatus() == RecordingStatus::Recording &&
                fullRecorder.LastTimePoint() == TimePoint(1458569109680000000) &&
                fullRecorder.LastTodTimecode() == fullTimeCode &&
                fullRecorder.LastUserTimecode() == TimeCode(2016, 3, 21, 0, 10, 0, 0, Rate(30), true) &&
                fullRecorder.PrimaryTimecodeType() == TimecodePrimary::User &&
                fullRecorder.RemainingCapacity() == Duration(3600000000000) &&
                fullRecorder.TotalCapacity() == Duration(7200000000000));
    EXPECT_TRUE(fullPlayer.PlayingStatus() == PlayingStatus::Playing && fullPlayer.SpeedOnAir() == Speed(-3, 2) &&
                fullPlayer.GlobalLoopMode() == PlayingLoopMode::Bounce &&
                fullPlayer.RemainingTime() == Duration(-40000000) && IsFull(*fullPlayer.Sequence()) &&
                fullPlayer.CurrentTimePointOnAir() == TimePoint(0) && fullPlayer.TodTimecodeOnAir() == fullTimeCode &&
                fullPlayer.UserTimecodeOnAir() == TimeCode::Empty() + 1 &&
                fullPlayer.PrimaryTimecodeType() == TimecodePrimary::Tod &&
                *fullPlayer.InBoundary() == BoundaryAbsolute(TimePoint(5)) &&
                *fullPlayer.OutBoundary() == BoundaryRelative(BoundaryOrigin::RelativeToOppositeLoadBoundary, -25));
    ExpectText(fullRecorder, fullInput);
    ExpectText(fullRecorder, fullInput, MediaInputToJsonConverter());
    ExpectText(fullPlayer, fullOutput);
    ExpectText(fullPlayer, fullOutput, MediaOutputToJsonConverter());
    ExpectText(*fullPlayer.Sequence(), fullSequenceOutput);
    ExpectText(Node(Identifier("n1"), -2, "srv", "10.0.0.1", {"10.0.1.2", "10.0.1.1"}, "6U", "B2", "1.2.3"), fullNode);
    ExpectText(Speed(INT32_MIN, UINT32_MAX), R"({"_type":"Speed","numerator":-2147483648,"denominator":-1})");
    Stringer members;
    members.Object().Key("before").Value(1);
    EXPECT_TRUE(NodeToJsonConverter().AppendNode(members, Node()));
    EXPECT_EQ(members.CloseObject().ToString(), R"({"before":1,"_type":"Node","id":""})");
}

TEST_F(Writers, WriteStrangeValues)
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

TEST_F(Writers, RefuseWhatIsOfNoKind)
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

/// Writes a mark for each time point; reports a failure when it has a text for it.
struct MarkingWriter : ToJsonConverter<TimePoint>
{
    explicit MarkingWriter(const char* failure = nullptr) : result(failure ? Result(failure) : Result()) {}
    using ToJsonConverter::To;
    Result To(const TimePoint& timePoint, Stringer& stringer) const override
    {
        stringer.Value(static_cast<std::int32_t>(timePoint.Nanoseconds() % 1000));
        return result;
    }
    Result result;
};

TEST_F(Writers, UseAnInjectedTimePointWriterInTheirPlaces)
{
    const auto standard = [](const std::string& value) { return R"({"_type":"TimePoint","value":")" + value + "\"}"; };
    const auto writer = std::make_shared<MarkingWriter>();
    auto output = fullPlayer;
    output.OutBoundary(std::make_unique<BoundaryAbsolute>(TimePoint(6)));

    // Taken: the sequence's assets and the in boundary. Not: the asset on air, the current time point, the out
    // boundary.
    const auto markedSequence =
        ReplacedAll(ReplacedAll(fullSequenceOutput, standard("-1"), "-1"), standard("9223372036854775807"), "807");
    auto expected = ReplacedAll(ReplacedAll(fullOutput, fullSequenceOutput, markedSequence), standard("5"), "5");
    expected.replace(expected.find("{\"_type\":\"BoundaryRelative"), std::string::npos,
                     R"({"_type":"BoundaryAbsolute","timepoint":)" + standard("6") + "}}");
    EXPECT_EQ(Written(output, MediaOutputToJsonConverter(writer)), expected);
    const MediaIOToJsonConverter original(writer);
    EXPECT_EQ(Written(output, original), expected);
    EXPECT_EQ(Written(output, MediaIOToJsonConverter(original)), expected); // a copy shares it
    EXPECT_EQ(Written(*fullPlayer.Sequence(), SequenceOutputToJsonConverter(writer)), markedSequence);
    EXPECT_EQ(Written(fullRecorder, MediaIOToJsonConverter(writer)),
              ReplacedAll(fullInput, standard("1458569109680000000"), "0"));
}

TEST_F(Writers, CloseWhatTheyOpenedWhenANestedWriterFails)
{
    const auto writer = std::make_shared<MarkingWriter>("no time points here");
    const std::string failure = " | no time points here";
    const std::string asset = R"({"_type":"MediaAsset","id":"a1","name":"Goal","inPoint":-1})";
    const std::string reference = R"({"_type":"MediaAssetRef","id":"a1","mediaAsset":)" + asset + "}";
    const auto sequence = fullSequenceOutput.substr(0, fullSequenceOutput.find(fullAssetReference)) + reference + "}}";
    EXPECT_EQ(Written(*fullPlayer.MediaAssetOnAir().Pointer(), MediaAssetToJsonConverter(writer)), asset + failure);
    const SharedReferenceToJson<MediaAsset, false> references("MediaAssetRef", "mediaAsset",
                                                              std::make_shared<MediaAssetToJsonConverter>(writer));
    EXPECT_EQ(Written(fullPlayer.MediaAssetOnAir(), references), reference + failure);
    EXPECT_EQ(Written(*fullPlayer.Sequence(), SequenceOutputToJsonConverter(writer)), sequence + failure);

    // One that writes nothing for its key owes a value, and gets an empty object.
    struct SilentWriter : ToJsonConverter<TimePoint>
    {
        Result To(const TimePoint&, Stringer&) const override { return "silent"; }
    };
    const auto silent = std::make_shared<SilentWriter>();
    EXPECT_EQ(Written(*fullPlayer.MediaAssetOnAir().Pointer(), MediaAssetToJsonConverter(silent)),
              R"({"_type":"MediaAsset","id":"a1","name":"Goal","inPoint":{}} | silent)");
    EXPECT_EQ(Written(BoundaryAbsolute(TimePoint(5)), BoundaryToJsonConverter(silent)),
              R"({"_type":"BoundaryAbsolute","timepoint":{}})");
    EXPECT_EQ(Written(fullRecorder, MediaInputToJsonConverter(silent)),
              ReplacedAll(fullInput, R"({"_type":"TimePoint","value":"1458569109680000000"})", "{}"));

    // A channel and a boundary do not look at these failures.
    EXPECT_EQ(Written(BoundaryAbsolute(TimePoint(5)), BoundaryToJsonConverter(writer)),
              R"({"_type":"BoundaryAbsolute","timepoint":5})");
    auto expected = ReplacedAll(fullOutput, fullSequenceOutput, sequence);
    expected = ReplacedAll(expected, R"({"_type":"TimePoint","value":"5"})", "5");
    EXPECT_EQ(Written(fullPlayer, MediaOutputToJsonConverter(writer)), expected);
    EXPECT_EQ(Written(fullRecorder, MediaInputToJsonConverter(writer)),
              ReplacedAll(fullInput, R"({"_type":"TimePoint","value":"1458569109680000000"})", "0"));
}

} // namespace
} // namespace Qiv::Tests
