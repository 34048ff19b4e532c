#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/Clone.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/MetadataValues.h>

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/HaveEqualContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <CaseFiles.h>
#include <ThrownText.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

namespace Qiv::Tests
{

using namespace BusinessEntityModel::BaseTypes;
using namespace DataModel::Tarvonel::MediaIOs;
using namespace DataModel::Tarvonel::Serialization::Json;
using namespace DataModel::Tarvonel::Serialization::Json::Channels;
using namespace DataModel::Tarvonel::Serialization::Json::Documents;

namespace
{

std::string Listed(const EditorialMetadata& metadata)
{
    std::string list;
    for (const auto& [key, value] : MetadataValues(metadata))
    {
        list += key + '=' + value + ' ';
        EXPECT_EQ(MetadataValue(metadata, key), value) << key;
    }
    return list;
}

} // namespace

TEST(Clone, HasTheContentAndSharesNothingThatChanges)
{
    for (const auto* const name : {"/recorder", "/player"})
    {
        const auto text = Document(name);
        const auto result = ReadAnyText(text);
        const auto& channel = *ChannelOf(result.Entity());
        const auto clone = Clone(channel);
        EXPECT_TRUE(HaveEqualContent(*clone, channel));
        EXPECT_EQ(clone->MediaAssetOnAir().Pointer(), channel.MediaAssetOnAir().Pointer());
        for (const auto& [profileName, profile] : channel.Metadata())
            EXPECT_NE(clone->Metadata().Find(profileName.Value()), profile) << profileName.Value();
        ASSERT_TRUE(MergeText(text, *IndependentCopy(*clone)));
        EXPECT_EQ(ToText(channel), text);
    }
}

TEST(MergeText, LeavesTheChannelAsItWasWhenItThrows)
{
    const FullyQualifiedName name("qiv.peloperator");
    MediaInput channel;
    channel.Name("kept");
    channel.Metadata().Set(name, std::make_shared<GenericMetadataProfile>(name)); // of the wrong kind for its name
    const auto before = ToText(channel);
    const auto* const text = R"({"_type":"MediaInput","name":"new","metadata":{"a.b":"c","qiv.peloperator.index":1}})";
    EXPECT_THROW(static_cast<void>(MergeText(text, channel)), std::bad_cast);
    EXPECT_EQ(ToText(channel), before);
}

TEST(MetadataValues, AreListedAndSetByTheKeysOfDocuments)
{
    MediaInput channel;
    ASSERT_TRUE(MergeText(
        R"({"_type":"MediaInput","metadata":{"z.":"1","a.b.c":"2","a.b":"3","qiv.peloperator.index":7}})", channel));
    auto& metadata = channel.Metadata();
    EXPECT_EQ(Listed(metadata), "a.b=3 a.b.c=2 qiv.peloperator.index=7 z.=1 ");

    const auto copy = channel; // shares the profiles
    SetMetadataValue(metadata, "a.b", "new");
    SetMetadataValue(metadata, "qiv.peloperator.serverId", "1230");
    SetMetadataValue(metadata, ".x", "");
    SetMetadataValue(metadata, "qiv.peloperator", "a generic one, named qiv");
    EXPECT_EQ(Listed(metadata), ".x= a.b=new a.b.c=2 qiv.peloperator=a generic one, named qiv "
                                "qiv.peloperator.serverId=1230 qiv.peloperator.index=7 z.=1 ");
    EXPECT_EQ(Listed(copy.Metadata()), "a.b=3 a.b.c=2 qiv.peloperator.index=7 z.=1 ");
    MediaInput readBack;
    ASSERT_TRUE(ReadSnapshotText(ToText(channel), readBack));
    EXPECT_EQ(Listed(readBack.Metadata()), Listed(metadata));

    const auto* const profile = metadata.Find("a").get();
    SetMetadataValue(metadata, "a.y", "2");
    EXPECT_EQ(metadata.Find("a").get(), profile) << "a profile of its own is changed in place";
    EXPECT_EQ(MetadataValue(metadata, "a.y"), "2");
    for (const auto* const key : {"a", "a.", "b", "a.b.", "a.b.c.d", "", ".", "qiv.peloperator.serverid"})
        EXPECT_EQ(MetadataValue(metadata, key), std::nullopt) << key;
}

TEST(MetadataValues, KnowProfilesThatNoDocumentMakes)
{
    EditorialMetadata metadata;
    const auto odd = std::make_shared<GenericMetadataProfile>("a");
    odd->Set("b.c", "1"); // as if it were of the profile "a.b"
    metadata.Set(odd);
    metadata.Set("null", nullptr);
    const auto silent = std::make_shared<PelOperatorMetadataProfile>();
    silent->Index(-1);
    metadata.Set(silent);
    EXPECT_EQ(Listed(metadata), "a.b.c=1 ");
    SetMetadataValue(metadata, "a.b.c", "2");
    SetMetadataValue(metadata, "null.x", "3");
    SetMetadataValue(metadata, "qiv.peloperator.index", "0");
    EXPECT_EQ(Listed(metadata), "a.b.c=2 null.x=3 qiv.peloperator.index=0 ");
}

TEST(MetadataValues, RefuseWhatNoReaderTakes)
{
    const std::vector<std::vector<std::string>> cases{
        {"lens", "86x", "without a dot it belongs to no profile"},
        {"qiv.peloperatorX.k", "1", "names that begin with \"qiv.peloperator\" are reserved"},
        {"qiv.peloperator.serverId", "7", "the value is no positive multiple of 10"},
        {"qiv.peloperator.serverId", "0", "the value is no positive multiple of 10"},
        {"qiv.peloperator.index", "", "the value is no whole number of 32 bits"},
        {"qiv.peloperator.index", "1x", "the value is no whole number of 32 bits"},
        {"qiv.peloperator.index", "2147483648", "the value is no whole number of 32 bits"},
        {"foreign.key", "1", "its profile is of another kind"},
    };
    EditorialMetadata metadata;
    metadata.Set("foreign", std::make_shared<PelOperatorMetadataProfile>());
    const auto before = Listed(metadata);
    for (const auto& each : cases)
        EXPECT_EQ(ThrownText<std::invalid_argument>([&] { SetMetadataValue(metadata, each[0], each[1]); }),
                  "metadata key '" + each[0] + "': " + each[2]);
    EXPECT_EQ(Listed(metadata), before);
    EXPECT_EQ(metadata.Size(), 1U);
}

} // namespace Qiv::Tests
