#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>

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

TEST(JsonToSequenceOutputConverter, ReadsBlocks)
{
    SequenceOutput::AssetBlockOutput block;
    const JsonToSequenceOutputConverter reader;
    EXPECT_TRUE(reader.ToAssetBlockOutput(Parse("[1]"), block));
    EXPECT_STREQ(reader.ToAssetBlockOutput(Parse(R"({"id":"kept","mediaAsset":{}})"), block).ErrorMessage(),
                 "Bad format");
    EXPECT_EQ(block.Id().Value(), "kept");
}

TEST(JsonToMetadataProfileDictionaryConverter, MeetsProfilesOfOtherKinds)
{
    // A profile of the wrong kind for its name throws; an entry without profile counts as absent.
    const FullyQualifiedName operatorName("qiv.peloperator");
    MetadataProfileDictionary dictionary;
    dictionary.Set(operatorName, nullptr);
    dictionary.Set(FullyQualifiedName("a"), nullptr);
    Read(fullMetadata, dictionary);
    EXPECT_EQ(Written(dictionary), fullMetadata);
    dictionary.Set(FullyQualifiedName("d"), std::make_shared<PelOperatorMetadataProfile>());
    EXPECT_THROW(
        JsonToMetadataProfileDictionaryConverter().To(Parse(R"({"a.b":"kept","d.k":"x","e.k":"never"})"), dictionary),
        std::bad_cast);
    EXPECT_EQ(static_cast<GenericMetadataProfile&>(dictionary.At(FullyQualifiedName("a"))).Get("b"), "kept");
    EXPECT_FALSE(dictionary.Contains(FullyQualifiedName("e")));
    dictionary.Set(operatorName, std::make_shared<GenericMetadataProfile>(operatorName));
    EXPECT_THROW(JsonToMetadataProfileDictionaryConverter().To(Parse(R"({"a.b":"never"})"), dictionary), std::bad_cast);
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
