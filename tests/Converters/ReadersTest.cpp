#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace Qiv::Tests
{
namespace
{

/// Reads each document of a case into each entity that it names, also as a temporary.
const auto checkReading = [](const Case& each, const auto& conversion)
{
    const auto& [name, reader, writer] = conversion;
    for (const auto& before : each.List("before"))
        for (const auto& document : each.Documents())
            for (const bool asTemporary : {false, true})
            {
                SCOPED_TRACE(name + " reads " + document + (asTemporary ? " as a temporary" : "") + " into " + before);
                typename std::decay_t<decltype(conversion)>::Entity entity{};
                if (before != "null")
                    Read(before, entity, reader);
                const auto after = After(each, Written(entity, writer), document);
                const auto json = Parse(document);
                auto given = json;
                const auto result = asTemporary ? reader.To(std::move(given), entity) : reader.To(given, entity);
                EXPECT_STREQ(result.ErrorMessage(), each.Text("message").c_str());
                EXPECT_EQ(result, !each.Has("message"));
                EXPECT_EQ(Parse(Written(entity, writer)).toStyledString(), after.toStyledString());
                EXPECT_TRUE(given == json) << given.toStyledString();
                EXPECT_STREQ(reader.GetLastConversionError(), "");
            }
};
const bool areRegistered = RegisterFolder(
    "readers", [](const Case& each)
    { ForEachConversion(each, "readers", [&](const auto& conversion) { checkReading(each, conversion); }); });

void ExpectGoal(const SharedReference<MediaAsset>& reference)
{
    ASSERT_TRUE(reference.Pointer());
    EXPECT_EQ(reference->Id(), Identifier("a1"));
    EXPECT_EQ(reference->Name(), "Goal");
    EXPECT_EQ(reference->InPoint(), TimePoint(-1));
    EXPECT_EQ(reference->OutPoint(), TimePoint(INT64_MAX));
}

const TimeCode timeCode(2016, 3, 21, 14, 5, 9, 17, TimePoints::Rate(25), false);

// What is written agrees also when reader and writer take the same member for another one.
TEST(Readers, PutEveryMemberOfARecorderWhereItBelongs)
{
    const auto recorder = FromText<MediaInput>(fullInput);
    EXPECT_EQ(recorder.Id(), Identifier("c1"));
    EXPECT_EQ(recorder.Name(), "Cam \"A\" \xC3\xA9");
    ExpectGoal(recorder.MediaAssetOnAir());
    const auto& metadata = recorder.Metadata();
    EXPECT_EQ(dynamic_cast<const GenericMetadataProfile&>(*metadata.Find("a.b")).Get("c"), "2");
    const auto& forOperator = dynamic_cast<const PelOperatorMetadataProfile&>(*metadata.Find("qiv.peloperator"));
    EXPECT_EQ(forOperator.ServerId(), 1230);
    EXPECT_EQ(forOperator.Index(), 7);
    EXPECT_EQ(recorder.RecordingStatus(), RecordingStatus::Recording);
    EXPECT_EQ(recorder.LastTimePoint(), TimePoint(1458569109680000000));
    EXPECT_EQ(recorder.LastTodTimecode(), timeCode);
    EXPECT_EQ(recorder.LastUserTimecode(), TimeCode(2016, 3, 21, 0, 10, 0, 0, TimePoints::Rate(30), true));
    EXPECT_EQ(recorder.PrimaryTimecodeType(), TimecodePrimary::User);
    EXPECT_EQ(recorder.RemainingCapacity(), Duration(3600000000000));
    EXPECT_EQ(recorder.TotalCapacity(), Duration(7200000000000));
}

TEST(Readers, PutEveryMemberOfAPlayerWhereItBelongs)
{
    const auto player = FromText<MediaOutput>(fullOutput);
    EXPECT_EQ(player.PlayingStatus(), PlayingStatus::Playing);
    EXPECT_EQ(player.SpeedOnAir(), Speed(-3, 2));
    EXPECT_EQ(player.GlobalLoopMode(), PlayingLoopMode::Bounce);
    EXPECT_EQ(player.RemainingTime(), Duration(-40000000));
    EXPECT_EQ(player.CurrentTimePointOnAir(), TimePoint(0));
    EXPECT_EQ(player.TodTimecodeOnAir(), timeCode);
    EXPECT_EQ(player.UserTimecodeOnAir(), TimeCode::Empty() + 1);
    EXPECT_EQ(player.PrimaryTimecodeType(), TimecodePrimary::Tod);
    EXPECT_EQ(*player.InBoundary(), BoundaryAbsolute(TimePoint(5)));
    EXPECT_EQ(*player.OutBoundary(), BoundaryRelative(BoundaryOrigin::RelativeToOppositeLoadBoundary, -25));
    const auto& sequence = player.Sequence().Value();
    EXPECT_EQ(sequence.SequenceOnAir()->Id(), Identifier("s1"));
    EXPECT_EQ(sequence.SequenceOnAir()->Name(), "Highlights");
    EXPECT_EQ(sequence.AssetBlockOnAir().Id(), Identifier("b1"));
    ExpectGoal(sequence.AssetBlockOnAir().MediaAssetRef());
    EXPECT_EQ(sequence.NextAssetBlockOnAir(), SequenceOutput::AssetBlockOutput());
    EXPECT_TRUE(sequence.EditMode());
}

TEST(JsonToSharedReference, RefusesObjectsWithoutAReaderForThem)
{
    const JsonToSharedReference<MediaAsset> withoutReader("MediaAssetRef", "mediaAsset", nullptr);
    SharedReference<MediaAsset> target;
    EXPECT_STREQ(withoutReader.To(Parse(fullAssetReference), target).ErrorMessage(), "Bad format");
}

TEST(JsonToBoundaryConverter, AppendsTheKindThatIsAskedFor)
{
    std::unique_ptr<Boundary> boundary;
    const JsonToBoundaryConverter reader;
    EXPECT_STREQ(reader.Append(Parse("[]"), boundary).ErrorMessage(), "Invalid _type");
    EXPECT_TRUE(reader.AppendBoundaryRelative(Parse(R"({"_type":"BoundaryAbsolute","offset":4})"), boundary));
    EXPECT_EQ(boundary->Origin(), BoundaryOrigin::RelativeToCorrespondingMediaBoundary);
    EXPECT_TRUE(reader.AppendBoundaryAbsolute(Parse("5"), boundary));
    EXPECT_TRUE(boundary->IsEmpty());
}

TEST(JsonToSequenceOutputConverter, KeepsTheIdentifierOfABlockThatFails)
{
    SequenceOutput::AssetBlockOutput block;
    const JsonToSequenceOutputConverter reader;
    EXPECT_TRUE(reader.ToAssetBlockOutput(Parse("[1]"), block));
    EXPECT_STREQ(reader.ToAssetBlockOutput(Parse(R"({"id":"kept","mediaAsset":{}})"), block).ErrorMessage(),
                 "Bad format");
    EXPECT_EQ(block.Id().Value(), "kept");
}

TEST(JsonToMetadataProfileDictionaryConverter, ThrowsAtAProfileOfTheWrongKindForItsName)
{
    // A profile of the wrong kind for its name throws; an entry without profile counts as absent.
    const FullyQualifiedName operatorName("qiv.peloperator");
    MetadataProfileDictionary dictionary;
    dictionary.Set(operatorName, nullptr);
    dictionary.Set(FullyQualifiedName("a"), nullptr);
    Read(fullMetadata, dictionary);
    EXPECT_EQ(Written(dictionary), fullMetadata);
    dictionary.Set(FullyQualifiedName("d"), std::make_shared<PelOperatorMetadataProfile>());
    const auto read = [&](const char* text)
    { static_cast<void>(JsonToMetadataProfileDictionaryConverter().To(Parse(text), dictionary)); };
    EXPECT_THROW(read(R"({"a.b":"kept","d.k":"x","e.k":"never"})"), std::bad_cast);
    EXPECT_EQ(static_cast<GenericMetadataProfile&>(dictionary.At(FullyQualifiedName("a"))).Get("b"), "kept");
    EXPECT_FALSE(dictionary.Contains(FullyQualifiedName("e")));
    dictionary.Set(operatorName, std::make_shared<GenericMetadataProfile>(operatorName));
    EXPECT_THROW(read(R"({"a.b":"never"})"), std::bad_cast);
}

TEST(Readers, AppendToWhatIsNoObjectChangesNothing)
{
    MediaInput input;
    MediaOutput output;
    Read(fullInput, input);
    Read(fullOutput, output);
    for (const auto* const text : {"null", "5", "\"text\"", "[]", "[{}]", "{}", R"({"_type":"Other"})"})
    {
        const auto json = Parse(text);
        EXPECT_TRUE(JsonToMediaIOConverter().Append(json, input));
        EXPECT_TRUE(JsonToMediaInputConverter().Append(json, input));
        EXPECT_TRUE(JsonToMediaOutputConverter().Append(json, output));
    }
    // The kinds' own Append leaves the common members alone, and the common one the kinds'.
    EXPECT_TRUE(JsonToMediaInputConverter().Append(Parse(R"({"id":"x","metadata":{"a.b":"x"}})"), input));
    EXPECT_TRUE(JsonToMediaOutputConverter().Append(Parse(R"({"id":"x","mediaAssetOnAir":{}})"), output));
    EXPECT_TRUE(JsonToMediaIOConverter().Append(Parse(R"({"recordingStatus":"Idle","lastTimePoint":5})"), input));
    EXPECT_EQ(Written(input), fullInput);
    EXPECT_EQ(Written(output), fullOutput);
}

} // namespace
} // namespace Qiv::Tests
