#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>

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

TEST(Writers, WriteEveryArgumentOfAConstructor)
{
    EXPECT_EQ(Written(Node(Identifier("n1"), -2, "srv", "10.0.0.1", {"10.0.1.2", "10.0.1.1"}, "6U", "B2", "1.2.3")),
              fullNode);
    EXPECT_EQ(Written(Speed(INT32_MIN, UINT32_MAX)), R"({"_type":"Speed","numerator":-2147483648,"denominator":-1})");
    Stringer members;
    members.Object().Key("before").Value(1);
    EXPECT_TRUE(NodeToJsonConverter().AppendNode(members, Node()));
    EXPECT_EQ(members.CloseObject().ToString(), R"({"before":1,"_type":"Node","id":""})");
}

TEST(Writers, AppendWhatTheyWriteToAnOpenObject)
{
    const BoundaryAbsolute absolute(TimePoint(7));
    const BoundaryRelative relative(BoundaryOrigin::RelativeToOppositeMediaBoundary, 4);
    Stringer json;
    EXPECT_TRUE(BoundaryToJsonConverter().Append(json.Object(), absolute));
    EXPECT_TRUE(BoundaryToJsonConverter().Append(json.CloseObject().Object(), relative));
    EXPECT_TRUE(SpeedToJsonConverter().AppendSpeed(json.CloseObject().Object(), Speed(1, 2)));
    EXPECT_EQ(json.CloseObject().ToString(),
              R"({"_type":"BoundaryAbsolute","timepoint":{"_type":"TimePoint","value":"7"}})"
              R"({"_type":"BoundaryRelative","origin":"RelativeToOppositeMediaBoundary","offset":4})"
              R"({"_type":"Speed","numerator":1,"denominator":2})");
}

TEST(Writers, WriteWhatNoDocumentGives)
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

/// What a writer makes of the entity that a case holds, also of a temporary: its text, when the case says "unchanged".
const auto checkWriting = [](const Case& each, const auto& conversion)
{
    using Conversion = std::decay_t<decltype(conversion)>;
    const std::map<std::string, std::shared_ptr<Injected>> timePoints = {
        {"marked", std::make_shared<Injected>(true, Result())},
        {"failing", std::make_shared<Injected>(true, "no time points here")},
        {"silent", std::make_shared<Injected>(false, "silent")}};
    auto writer = conversion.writer;
    if constexpr (std::is_constructible_v<typename Conversion::Writer, std::shared_ptr<Injected>>)
        if (each.Has("timePoints"))
            writer = typename Conversion::Writer(timePoints.at(each.Text("timePoints")));

    const auto holds = Followed(each.JsonText("holds"));
    typename Conversion::Entity entity{};
    Read(holds, entity, conversion.reader);
    const auto write = [&](auto& value)
    {
        for (const bool asTemporary : {false, true})
        {
            SCOPED_TRACE(conversion.name + " writes " + holds + (asTemporary ? " as a temporary" : ""));
            Stringer stringer;
            const auto result =
                asTemporary ? writer.To(std::move(value), stringer) : writer.To(std::as_const(value), stringer);
            EXPECT_STREQ(result.ErrorMessage(), each.Text("message").c_str());
            EXPECT_EQ(result, !each.Has("message"));
            EXPECT_EQ(Parse(stringer.ToString()).toStyledString(), After(each, holds).toStyledString());
            EXPECT_EQ(each.Has("changes") ? holds : stringer.ToString(), holds);
            EXPECT_STREQ(writer.GetLastConversionError(), "");
        }
    };
    if constexpr (std::is_same_v<typename Conversion::Entity, std::unique_ptr<Boundary>>)
        write(*entity);
    else
        write(entity);
};
const bool areRegistered = RegisterFolder(
    "writers", [](const Case& each)
    { ForEachConversion(each, "writers", [&](const auto& conversion) { checkWriting(each, conversion); }); });

TEST(SharedReferenceToJson, FailsAsTheWriterOfTheObjectDoes)
{
    const SharedReferenceToJson<MediaAsset, false> references(
        "MediaAssetRef", "mediaAsset",
        std::make_shared<MediaAssetToJsonConverter>(std::make_shared<Injected>(true, "no time points here")));
    EXPECT_EQ(
        Written(FromText<MediaInput>(fullInput).MediaAssetOnAir(), references),
        R"({"_type":"MediaAssetRef","id":"a1","mediaAsset":{"_type":"MediaAsset","id":"a1","name":"Goal","inPoint":-1}} | no time points here)");
}

} // namespace
} // namespace Qiv::Tests
