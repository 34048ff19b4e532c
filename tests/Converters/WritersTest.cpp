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

TEST(Writers, WriteFullEntities)
{
    const auto fullRecorder = FromText<MediaInput>(fullInput);
    const auto fullPlayer = FromText<MediaOutput>(fullOutput);
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

template <typename Entity, typename Writer>
std::string Rewritten(const std::string& text, const std::shared_ptr<Injected>& injected)
{
    const Writer original(injected);
    return Written(FromText<Entity>(text), Writer(original)); // a copy shares it
}

TEST(Writers, DoWithInjectedTimePointWritersWhatTheirCasesSay)
{
    const std::map<std::string, std::string (*)(const std::string&, const std::shared_ptr<Injected>&)> writers = {
        {"MediaAsset", Rewritten<MediaAsset, MediaAssetToJsonConverter>},
        {"SequenceOutput", Rewritten<SequenceOutput, SequenceOutputToJsonConverter>},
        {"Boundary", Rewritten<std::unique_ptr<Boundary>, BoundaryToJsonConverter>},
        {"MediaInput", Rewritten<MediaInput, MediaInputToJsonConverter>},
        {"MediaOutput", Rewritten<MediaOutput, MediaOutputToJsonConverter>},
        {"MediaIO recorder", Rewritten<MediaInput, MediaIOToJsonConverter>},
        {"MediaIO player", Rewritten<MediaOutput, MediaIOToJsonConverter>}};
    const auto failing = std::make_shared<Injected>(true, "no time points here");
    const std::map<std::string, std::shared_ptr<Injected>> injected = {
        {"MARKING", std::make_shared<Injected>(true, Result())},
        {"FAILING", failing},
        {"SILENT", std::make_shared<Injected>(false, "silent")}};
    for (const auto& line : Lines("Converters/cases/writers.txt", Names(documents)))
    {
        SCOPED_TRACE(line);
        const auto words = Split(Split(line, ": ")[0], ", ");
        const auto sides = Split(Split(line, ": ").at(1) + " >> ", " >> ");
        const auto writing = Split(sides[0], " !! ");
        const auto expected = Edited(writing[0], sides[1]) + (writing.size() == 2 ? " | " + writing[1] : "");
        EXPECT_EQ(writers.at(words[0])(writing[0], injected.at(words.at(1))), expected);
    }
    const SharedReferenceToJson<MediaAsset, false> references("MediaAssetRef", "mediaAsset",
                                                              std::make_shared<MediaAssetToJsonConverter>(failing));
    EXPECT_EQ(
        Written(FromText<MediaOutput>(fullOutput).MediaAssetOnAir(), references),
        R"({"_type":"MediaAssetRef","id":"a1","mediaAsset":{"_type":"MediaAsset","id":"a1","name":"Goal","inPoint":-1}} | no time points here)");
}

} // namespace
} // namespace Qiv::Tests
