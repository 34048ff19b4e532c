#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace Qiv::Tests
{
namespace
{

using TimePoints::Rate;

template <typename Base, typename Converter>
constexpr bool isWellFormed = std::is_base_of_v<Base, Converter>&& std::is_default_constructible_v<Converter>&&
    std::is_copy_constructible_v<Converter>&& std::is_move_constructible_v<Converter>;
/// A reader and a writer, which both declare whether they let exceptions out.
template <bool areNoexcept, typename Entity, typename Reader, typename Writer, typename Written = Entity>
constexpr bool arePair = isWellFormed<FromJsonConverter<Entity>, Reader>&&
                             isWellFormed<ToJsonConverter<Written>, Writer>&& noexcept(std::declval<Reader&>().To(
                                 std::declval<const JsonObject&>(), std::declval<Entity&>())) ==
                         areNoexcept&& noexcept(std::declval<Writer&>().To(std::declval<const Written&>(),
                                                                           std::declval<Stringer&>())) == areNoexcept;
static_assert(arePair<false, MediaIO, JsonToMediaIOConverter, MediaIOToJsonConverter>);
static_assert(arePair<true, Speed, JsonToSpeedConverter, SpeedToJsonConverter>);
static_assert(arePair<true, std::unique_ptr<Boundary>, JsonToBoundaryConverter, BoundaryToJsonConverter, Boundary>);
static_assert(arePair<true, MediaInput, JsonToMediaInputConverter, MediaInputToJsonConverter>);
static_assert(arePair<true, MediaOutput, JsonToMediaOutputConverter, MediaOutputToJsonConverter>);
static_assert(arePair<false, SequenceOutput, JsonToSequenceOutputConverter, SequenceOutputToJsonConverter>);
static_assert(arePair<false, MetadataProfileDictionary, JsonToMetadataProfileDictionaryConverter,
                      MetadataProfileDictionaryToJsonConverter>);
static_assert(arePair<false, PelOperatorMetadataProfile, JsonToPelOperatorMetaDataConverter,
                      PelOperatorMetadataProfileToJsonConverter>);
static_assert(arePair<false, Node, JsonToNodeConverter, NodeToJsonConverter>);

SharedReference<MediaAsset> MakeAsset()
{
    auto asset = std::make_shared<MediaAsset>();
    asset->Id(Identifier("a1"));
    asset->Name("Goal");
    asset->InPoint(TimePoint(-1));
    asset->OutPoint(TimePoint(INT64_MAX));
    return asset;
}

void FillCommon(MediaIO& channel)
{
    channel.Id(Identifier("c1"));
    channel.Name("Cam \"A\" \xC3\xA9");
    channel.MediaAssetOnAir(MakeAsset());
    PelOperatorMetadataProfile operatorProfile;
    operatorProfile.ServerId(1230);
    operatorProfile.Index(7);
    channel.Metadata().Set(std::make_shared<PelOperatorMetadataProfile>(operatorProfile));
    for (const auto& [name, key, value] : {std::tuple("z", "", "\x01"), {"a.b", "c", "2"}, {"a", "b", "1"}})
    {
        const auto profile = std::make_shared<GenericMetadataProfile>(FullyQualifiedName(name));
        profile->Set(key, value);
        channel.Metadata().Set(profile);
    }
}

SequenceOutput MakeSequenceOutput()
{
    auto sequence = std::make_shared<Sequence>();
    sequence->Id(Identifier("s1"));
    sequence->Name("Highlights");
    SharedReference<Sequence> reference(sequence);
    SequenceOutput::AssetBlockOutput block;
    block.Id(Identifier("b1"));
    block.MediaAssetRef(MakeAsset());
    SequenceOutput output;
    output.SequenceOnAir(reference);
    output.AssetBlockOnAir(block);
    output.NextAssetBlockOnAir(SequenceOutput::AssetBlockOutput());
    output.EditMode(true);
    return output;
}

MediaInput MakeInput()
{
    MediaInput channel;
    FillCommon(channel);
    channel.RecordingStatus(RecordingStatus::Recording);
    channel.LastTimePoint(TimePoint(1458569109680000000));
    channel.LastTodTimecode(TimeCode(2016, 3, 21, 14, 5, 9, 17, Rate(25), false));
    channel.LastUserTimecode(TimeCode(2016, 3, 21, 0, 10, 0, 0, Rate(30), true));
    channel.PrimaryTimecodeType(TimecodePrimary::User);
    Duration remaining(3600000000000);
    channel.TotalCapacity(Duration(7200000000000));
    channel.RemainingCapacity(remaining);
    return channel;
}

MediaOutput MakeOutput()
{
    MediaOutput channel;
    FillCommon(channel);
    channel.PlayingStatus(PlayingStatus::Playing);
    channel.SpeedOnAir(Speed(-3, 2));
    channel.GlobalLoopMode(PlayingLoopMode::Bounce);
    Duration remaining(-40000000);
    channel.RemainingTime(remaining);
    channel.CurrentTimePointOnAir(TimePoint(0));
    channel.TodTimecodeOnAir(TimeCode(2016, 3, 21, 14, 5, 9, 17, Rate(25), false));
    channel.UserTimecodeOnAir(TimeCode::Empty() + 1);
    channel.PrimaryTimecodeType(TimecodePrimary::Tod);
    channel.Sequence(MakeSequenceOutput());
    channel.InBoundary(std::make_unique<BoundaryAbsolute>(TimePoint(5)));
    channel.OutBoundary(std::make_unique<BoundaryRelative>(BoundaryOrigin::RelativeToOppositeLoadBoundary, -25));
    return channel;
}

template <typename Reader, typename Writer, typename Entity>
void ExpectText(const Entity& entity, const std::string& text)
{
    EXPECT_EQ(Written<Writer>(entity), text);
    Entity read;
    Read<Reader>(text, read);
    EXPECT_TRUE(read == entity);

    Stringer stringer;
    EXPECT_TRUE(Writer().To(Entity(entity), stringer)); // a temporary
    EXPECT_EQ(stringer.ToString(), text);
    EXPECT_STREQ(Writer().GetLastConversionError(), "");
}

TEST(Writers, WriteFullEntities)
{
    ExpectText<JsonToMediaInputConverter, MediaInputToJsonConverter>(MakeInput(), fullInput);
    ExpectText<JsonToMediaIOConverter, MediaIOToJsonConverter>(MakeInput(), fullInput);
    ExpectText<JsonToMediaOutputConverter, MediaOutputToJsonConverter>(MakeOutput(), fullOutput);
    ExpectText<JsonToMediaIOConverter, MediaIOToJsonConverter>(MakeOutput(), fullOutput);
    ExpectText<JsonToSequenceOutputConverter, SequenceOutputToJsonConverter>(MakeSequenceOutput(), fullSequenceOutput);
    ExpectText<JsonToNodeConverter, NodeToJsonConverter>(
        Node(Identifier("n1"), -2, "srv", "10.0.0.1", {"10.0.1.2", "10.0.1.1"}, "6U", "B2", "1.2.3"), fullNode);
    ExpectText<JsonToSpeedConverter, SpeedToJsonConverter>(
        Speed(INT32_MIN, UINT32_MAX), R"({"_type":"Speed","numerator":-2147483648,"denominator":-1})");
    Stringer members;
    members.Object().Key("before").Value(1);
    EXPECT_TRUE(NodeToJsonConverter().AppendNode(members, Node()));
    EXPECT_EQ(members.CloseObject().ToString(), R"({"before":1,"_type":"Node","id":""})");
}

TEST(Writers, LeaveOutWhatIsEmpty)
{
    ExpectText<JsonToMediaIOConverter, MediaIOToJsonConverter>(MediaInput(),
                                                               R"({"_type":"MediaInput","recordingStatus":"Idle"})");
    ExpectText<JsonToMediaIOConverter, MediaIOToJsonConverter>(MediaOutput(),
                                                               R"({"_type":"MediaOutput","playingStatus":"Idle"})");
    ExpectText<JsonToNodeConverter, NodeToJsonConverter>(Node(), R"({"_type":"Node","id":""})");
    const std::string block = R"({"_type":"AssetBlockOnAir","id":"","mediaAsset":{"_type":"MediaAssetRef","id":""}})";
    ExpectText<JsonToSequenceOutputConverter, SequenceOutputToJsonConverter>(
        SequenceOutput(), R"({"_type":"SequenceOutput","assetBlockOnAir":)" + block + R"(,"editMode":false})");
    ExpectText<JsonToSpeedConverter, SpeedToJsonConverter>(Speed(),
                                                           R"({"_type":"Speed","numerator":0,"denominator":0})");
    EXPECT_EQ(Written<BoundaryToJsonConverter>(BoundaryAbsolute()), R"({"_type":"BoundaryAbsolute"})");
    EXPECT_EQ(Written<MetadataProfileDictionaryToJsonConverter>(MetadataProfileDictionary()), "{}");

    MediaInput channel;
    SharedReference<MediaAsset> withoutIdentifier(std::make_shared<MediaAsset>());
    channel.MediaAssetOnAir(withoutIdentifier);
    channel.Metadata().Set(FullyQualifiedName("a"), nullptr);
    EXPECT_EQ(Written<MediaInputToJsonConverter>(channel),
              R"({"_type":"MediaInput","metadata":{},"recordingStatus":"Idle"})");
}

TEST(Writers, EndTextsAtNulAndWriteThePlaceholderDate)
{
    MediaInput channel;
    channel.Id(Identifier(std::string("a\0b", 3)));
    channel.Name(std::string("\0b", 2));
    channel.RecordingStatus(static_cast<RecordingStatus>(7));
    channel.LastTodTimecode(TimeCode(10, 0, 0, 0, Rate(25), false));
    channel.LastUserTimecode(TimeCode(0, false, Rate(50), false)); // the empty one but for its date
    EXPECT_EQ(Written<MediaIOToJsonConverter>(channel),
              R"({"_type":"MediaInput","id":"a","name":"","recordingStatus":"Unknown",)"
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
    EXPECT_EQ(Written<MetadataProfileDictionaryToJsonConverter>(dictionary), R"({"own.name.k":"v"})");
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
    EXPECT_EQ(Written<MediaIOToJsonConverter>(channel),
              "{} | Unsupported MediaIO type - should be MediaInput or MediaOutput");
    for (const auto* const type : {"MediaInput", "MediaOutput"})
        EXPECT_FALSE(
            JsonToMediaIOConverter().To(Parse(std::string(R"({"name":"x","_type":")") + type + "\"}"), channel));
    EXPECT_EQ(channel.Name(), "kept");

    using Writer = BoundaryToJsonConverter;
    EXPECT_EQ(Written<Writer>(BoundaryRelative(BoundaryOrigin::Absolute, 1)), "{} | Null BoundaryAbsolute");
    EXPECT_EQ(Written<Writer>(StrangeBoundary(BoundaryOrigin::Absolute)), "{} | Null BoundaryAbsolute");
    EXPECT_EQ(Written<Writer>(StrangeBoundary(BoundaryOrigin::RelativeToOppositeMediaBoundary)),
              "{} | Null BoundaryRelative");
    MediaOutput output;
    output.InBoundary(std::make_unique<StrangeBoundary>(BoundaryOrigin::Absolute));
    output.OutBoundary(output.InBoundary()->Clone());
    EXPECT_EQ(Written<MediaOutputToJsonConverter>(output),
              R"({"_type":"MediaOutput","playingStatus":"Idle","inBoundary":{},"outBoundary":{}})");
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

/// `text` with a mark wherever the standard form stands.
std::string Marked(std::string text, const std::string& standard, const std::string& mark)
{
    for (auto position = text.find(standard); position != std::string::npos; position = text.find(standard))
        text.replace(position, standard.size(), mark);
    return text;
}

TEST(Writers, UseAnInjectedTimePointWriterInTheirPlaces)
{
    const auto standard = [](const std::string& value) { return R"({"_type":"TimePoint","value":")" + value + "\"}"; };
    const auto writer = std::make_shared<MarkingWriter>();
    auto output = MakeOutput();
    output.OutBoundary(std::make_unique<BoundaryAbsolute>(TimePoint(6)));

    // Taken: the sequence's assets and the in boundary. Not: the asset on air, the current time point, the out
    // boundary.
    const auto markedSequence =
        Marked(Marked(fullSequenceOutput, standard("-1"), "-1"), standard("9223372036854775807"), "807");
    auto expected = Marked(Marked(fullOutput, fullSequenceOutput, markedSequence), standard("5"), "5");
    expected.replace(expected.find("{\"_type\":\"BoundaryRelative"), std::string::npos,
                     R"({"_type":"BoundaryAbsolute","timepoint":)" + standard("6") + "}}");
    EXPECT_EQ(Written(output, MediaOutputToJsonConverter(writer)), expected);
    EXPECT_EQ(Written(output, MediaIOToJsonConverter(writer)), expected);
    const MediaIOToJsonConverter original(writer);
    EXPECT_EQ(Written(output, MediaIOToJsonConverter(original)), expected); // a copy shares it
    EXPECT_EQ(Written(MakeSequenceOutput(), SequenceOutputToJsonConverter(writer)), markedSequence);
    EXPECT_EQ(Written(BoundaryAbsolute(TimePoint(5)), BoundaryToJsonConverter(writer)),
              R"({"_type":"BoundaryAbsolute","timepoint":5})");

    const auto expectedInput = Marked(fullInput, standard("1458569109680000000"), "0");
    EXPECT_EQ(Written(MakeInput(), MediaInputToJsonConverter(writer)), expectedInput);
    EXPECT_EQ(Written(MakeInput(), MediaIOToJsonConverter(writer)), expectedInput);
}

TEST(Writers, CloseWhatTheyOpenedWhenANestedWriterFails)
{
    const auto writer = std::make_shared<MarkingWriter>("no time points here");
    const std::string failure = " | no time points here";
    const std::string asset = R"({"_type":"MediaAsset","id":"a1","name":"Goal","inPoint":-1})";
    const std::string reference = R"({"_type":"MediaAssetRef","id":"a1","mediaAsset":)" + asset + "}";
    const auto sequence = fullSequenceOutput.substr(0, fullSequenceOutput.find(fullAssetReference)) + reference + "}}";
    EXPECT_EQ(Written(*MakeAsset(), MediaAssetToJsonConverter(writer)), asset + failure);
    const SharedReferenceToJson<MediaAsset, false> references("MediaAssetRef", "mediaAsset",
                                                              std::make_shared<MediaAssetToJsonConverter>(writer));
    EXPECT_EQ(Written(MakeAsset(), references), reference + failure);
    EXPECT_EQ(Written(MakeSequenceOutput(), SequenceOutputToJsonConverter(writer)), sequence + failure);

    // One that writes nothing for its key owes a value, and gets an empty object.
    struct SilentWriter : ToJsonConverter<TimePoint>
    {
        Result To(const TimePoint&, Stringer&) const override { return "silent"; }
    };
    const auto silent = std::make_shared<SilentWriter>();
    EXPECT_EQ(Written(*MakeAsset(), MediaAssetToJsonConverter(silent)),
              R"({"_type":"MediaAsset","id":"a1","name":"Goal","inPoint":{}} | silent)");
    EXPECT_EQ(Written(BoundaryAbsolute(TimePoint(5)), BoundaryToJsonConverter(silent)),
              R"({"_type":"BoundaryAbsolute","timepoint":{}})");
    EXPECT_EQ(Written(MakeInput(), MediaInputToJsonConverter(silent)),
              Marked(fullInput, R"({"_type":"TimePoint","value":"1458569109680000000"})", "{}"));

    // A channel and a boundary do not look at these failures.
    EXPECT_EQ(Written(BoundaryAbsolute(TimePoint(5)), BoundaryToJsonConverter(writer)),
              R"({"_type":"BoundaryAbsolute","timepoint":5})");
    auto expected = Marked(fullOutput, fullSequenceOutput, sequence);
    expected = Marked(expected, R"({"_type":"TimePoint","value":"5"})", "5");
    EXPECT_EQ(Written(MakeOutput(), MediaOutputToJsonConverter(writer)), expected);
    EXPECT_EQ(Written(MakeInput(), MediaInputToJsonConverter(writer)),
              Marked(fullInput, R"({"_type":"TimePoint","value":"1458569109680000000"})", "0"));
}

} // namespace
} // namespace Qiv::Tests
