#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Qiv::Tests
{
namespace
{

/// What a line says, for a target that was read from `before` (a new one when that is empty).
using Check = std::function<void(const std::string& before, const std::string& line)>;
template <typename Entity, typename Reader = ReaderOf<Entity>, typename Writer = WriterOf<Entity>>
Check Checking(const Reader& reader = Reader(), const Writer& writer = Writer())
{
    return [=](const std::string& before, const std::string& line)
    {
        const auto sides = Split(line, " >> ");
        const auto reading = Split(sides[0], " !! ");
        const auto json = Parse(reading[0]);
        const std::string message = reading.size() == 2 ? reading[1] : "";
        for (const bool asTemporary : {false, true})
        {
            Entity entity;
            if (!before.empty())
                Read(before, entity, reader);
            const auto unchanged = Written(entity, writer);
            auto temporary = json;
            const auto result = asTemporary ? reader.To(std::move(temporary), entity) : reader.To(json, entity);
            EXPECT_STREQ(result.ErrorMessage(), message.c_str());
            EXPECT_EQ(result, message.empty());
            EXPECT_EQ(Written(entity, writer), sides.size() == 2 ? Edited(unchanged, sides[1]) : unchanged);
            EXPECT_EQ(temporary, json);
            EXPECT_STREQ(reader.GetLastConversionError(), "");
        }
    };
}

struct OperatorWriter : PelOperatorMetadataProfileToJsonConverter
{
    using PelOperatorMetadataProfileToJsonConverter::To;
    Result To(const PelOperatorMetadataProfile& profile, Stringer& stringer) const override
    {
        const auto object = stringer.ObjectScope();
        return PelOperatorMetadataProfileToJsonConverter::To(profile, stringer);
    }
};

TEST(Readers, DoWhatTheirCasesSay)
{
    const JsonToSharedReference<MediaAsset> referenceReader("MediaAssetRef", "mediaAsset",
                                                            std::make_shared<JsonToMediaAssetConverter>());
    const SharedReferenceToJson<MediaAsset, false> referenceWriter("MediaAssetRef", "mediaAsset",
                                                                   std::make_shared<MediaAssetToJsonConverter>());
    const std::map<std::string, Check> checks = {
        {"JsonToTimePointConverter TimePoint", Checking<TimePoint>()},
        {"JsonToMediaAssetConverter MediaAsset", Checking<MediaAsset>()},
        {"JsonToSequenceConverter Sequence", Checking<Sequence>()},
        {"JsonToSharedReference SharedReference",
         Checking<SharedReference<MediaAsset>>(referenceReader, referenceWriter)},
        {"JsonToSpeedConverter Speed", Checking<Speed>()},
        {"JsonToBoundaryConverter Boundary", Checking<std::unique_ptr<Boundary>>()},
        {"JsonToSequenceOutputConverter SequenceOutput", Checking<SequenceOutput>()},
        {"JsonToMetadataProfileDictionaryConverter MetadataProfileDictionary", Checking<MetadataProfileDictionary>()},
        {"JsonToPelOperatorMetaDataConverter PelOperatorMetadataProfile",
         Checking<PelOperatorMetadataProfile>(JsonToPelOperatorMetaDataConverter(), OperatorWriter())},
        {"JsonToNodeConverter Node", Checking<Node>()},
        {"JsonToMediaIOConverter MediaInput", Checking<MediaInput>()},
        {"JsonToMediaIOConverter MediaOutput", Checking<MediaOutput>()},
        {"JsonToMediaInputConverter MediaInput",
         Checking<MediaInput>(JsonToMediaInputConverter(), MediaInputToJsonConverter())},
        {"JsonToMediaOutputConverter MediaOutput",
         Checking<MediaOutput>(JsonToMediaOutputConverter(), MediaOutputToJsonConverter())},
    };
    std::vector<std::string> headings;
    bool isGroupComplete = false;
    for (const auto& line : Lines("Converters/cases/readers.txt", Names(documents)))
    {
        const bool isHeading = line.rfind("== ", 0) == 0;
        if (isHeading && std::exchange(isGroupComplete, false))
            headings.clear();
        if (isHeading)
        {
            headings.push_back(line.substr(3));
            continue;
        }
        isGroupComplete = true;
        for (const auto& heading : headings)
        {
            SCOPED_TRACE(heading + '\n' + line);
            const auto sides = Split(heading + ": ", ": ");
            checks.at(sides[0])(sides[1], ReplacedAll(line, "$TYPE", Split(sides[0], " ")[1]));
        }
    }
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
