#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <vector>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{
namespace
{

namespace BaseTypes = BusinessEntityModel::BaseTypes;
using TimePoints::TimePoint;

static_assert(std::is_abstract_v<MediaIO> && std::has_virtual_destructor_v<MediaIO>);
static_assert(!std::is_copy_assignable_v<MediaIO> && !std::is_move_assignable_v<MediaIO>);
static_assert(std::is_copy_constructible_v<MediaInput> && std::is_copy_constructible_v<MediaOutput>);

/// Claims any origin, as a boundary of another library might.
struct ForeignBoundary : Boundary
{
    explicit ForeignBoundary(BoundaryOrigin origin) : claimed(origin) {}
    BoundaryOrigin Origin() const override { return claimed; }
    std::unique_ptr<Boundary> Clone() const override { return nullptr; }
    bool Equals(const Boundary& other) const override { return this == &other; }
    bool IsEmpty() const override { return false; }
    BoundaryOrigin claimed;
};

TEST(Boundary, IsEqualByKindAndFields)
{
    std::vector<std::unique_ptr<Boundary>> different;
    different.push_back(std::make_unique<BoundaryAbsolute>());
    for (const std::int64_t nanoseconds : {std::int64_t{0}, std::int64_t{1}, INT64_MIN})
        different.push_back(std::make_unique<BoundaryAbsolute>(TimePoint(nanoseconds)));
    for (int origin = 0; origin < 4; ++origin)
    {
        for (const std::int32_t offset : {0, 1, INT32_MIN})
            different.push_back(std::make_unique<BoundaryRelative>(static_cast<BoundaryOrigin>(origin), offset));
        different.push_back(std::make_unique<ForeignBoundary>(static_cast<BoundaryOrigin>(origin)));
    }
    for (const auto& left : different)
    {
        for (const auto& right : different)
        {
            EXPECT_EQ(left->Equals(*right), left == right);
            EXPECT_EQ(*left != *right, left != right);
        }
        EXPECT_EQ(left->IsEmpty(), left == different.front());
        if (const auto clone = left->Clone())
        {
            EXPECT_NE(clone, left);
            EXPECT_TRUE(clone->Equals(*left));
            EXPECT_TRUE(left->Equals(*clone));
        }
    }
    EXPECT_TRUE(BoundaryRelative().Equals(BoundaryRelative(BoundaryOrigin::RelativeToCorrespondingMediaBoundary, 0)));
}

TEST(AssetBlockOutput, IsEqualByIdentifierWhateverTheObject)
{
    SequenceOutput::AssetBlockOutput block;
    block.MediaAssetRef(std::make_shared<MediaAssets::MediaAsset>());
    EXPECT_EQ(block, SequenceOutput::AssetBlockOutput());
}

TEST(PelOperatorMetadataProfile, IsEqualByKindAndFields)
{
    PelOperatorMetadataProfile profile, other;
    const BaseTypes::GenericMetadataProfile generic(profile.FullyQualifiedName());
    EXPECT_FALSE(profile == generic);
    EXPECT_FALSE(generic == profile);
    profile.ServerId(10);
    EXPECT_FALSE(profile == other);
    other.ServerId(10);
    EXPECT_TRUE(profile == other);
    EXPECT_TRUE(profile == *profile.Clone());
    profile.Index(-1);
    EXPECT_FALSE(profile == other);
}

TEST(MediaOutput, OwnsTwoBoundariesThatAreNeverNull)
{
    MediaOutput channel;
    const auto* const out = channel.OutBoundary().get();
    channel.InBoundary(std::make_unique<BoundaryRelative>(BoundaryOrigin::RelativeToOppositeLoadBoundary, -25));
    EXPECT_EQ(channel.OutBoundary().get(), out);
    EXPECT_FALSE(channel.InBoundary()->IsEmpty());

    MediaOutput copy(channel);
    EXPECT_NE(copy.InBoundary(), channel.InBoundary());
    EXPECT_TRUE(*copy.InBoundary() == *channel.InBoundary());

    const auto* const in = copy.InBoundary().get();
    MediaOutput moved;
    moved = std::move(copy);
    EXPECT_EQ(moved.InBoundary().get(), in);
    for (const auto* boundary : {&copy.InBoundary(), &copy.OutBoundary()}) // moved from on purpose
    {
        ASSERT_NE(*boundary, nullptr);
        EXPECT_TRUE((*boundary)->IsEmpty());
    }

    auto& self = moved;
    moved = std::as_const(self);
    moved = std::move(self);
    EXPECT_EQ(*moved.InBoundary(), *channel.InBoundary());

    channel.InBoundary(nullptr);
    EXPECT_EQ(*channel.InBoundary(), BoundaryAbsolute());
    channel.OutBoundary(std::make_unique<ForeignBoundary>(BoundaryOrigin::Absolute));
    EXPECT_EQ(*MediaOutput(channel).OutBoundary(), BoundaryAbsolute()); // it has no clone
}

using MediaAssets::TimecodePrimary;
using MediaAssets::ToTimecodePrimary;

/// Checks an enumeration whose enumerators have the values 0, 1, ... and the given texts.
template <typename Enumeration>
void Check(const std::vector<std::string>& texts, Enumeration (&convert)(const std::string&), Enumeration fallback)
{
    static_assert(std::is_same_v<std::underlying_type_t<Enumeration>, std::int32_t>);
    for (std::size_t i = 0; i < texts.size(); ++i)
    {
        const auto value = static_cast<Enumeration>(i);
        EXPECT_EQ(ToString(value), texts[i]);
        std::ostringstream stream;
        stream << value;
        EXPECT_EQ(stream.str(), texts[i]);
        EXPECT_EQ(convert(texts[i]), value) << texts[i];
        const std::string buffer = '"' + texts[i] + '"';
        EXPECT_EQ(To<Enumeration>(std::string_view(buffer).substr(1, texts[i].size())), value) << texts[i];
        auto read = static_cast<Enumeration>(-1);
        EXPECT_TRUE(FromText(std::string_view(buffer).substr(1, texts[i].size()), read)) << texts[i];
        EXPECT_EQ(read, value) << texts[i];
        for (const auto& wrong : {buffer, texts[i] + '\0', texts[i].substr(1), "x" + texts[i]})
        {
            EXPECT_FALSE(FromText(wrong, read)) << wrong;
            EXPECT_EQ(read, fallback) << wrong;
        }
    }
    for (const auto value : {-1, static_cast<std::int32_t>(texts.size()), INT32_MIN, INT32_MAX})
        EXPECT_EQ(ToString(static_cast<Enumeration>(value)), "Unknown") << value;
    EXPECT_EQ(convert(""), fallback);
    EXPECT_EQ(To<Enumeration>("no such word"), fallback);
}

TEST(Enumerations, HaveOneTextForEachEnumerator)
{
    Check({"NotSet", "Tod", "User"}, ToTimecodePrimary, TimecodePrimary::NotSet);
    Check({"Idle", "Pause", "Recording"}, ToRecordingStatus, RecordingStatus::Idle);
    Check({"Idle", "Live", "Empty", "Cueing", "Ready", "Playing"}, ToPlayingStatus, PlayingStatus::Idle);
    Check({"Unknown", "None", "Loop", "Bounce"}, ToPlayingLoopMode, PlayingLoopMode::Unknown);
    Check({"Absolute", "RelativeToCorrespondingMediaBoundary", "RelativeToOppositeMediaBoundary",
           "RelativeToOppositeLoadBoundary"},
          ToBoundaryOrigin, BoundaryOrigin::RelativeToCorrespondingMediaBoundary);
}

} // namespace
} // namespace Qiv::DataModel::Tarvonel::MediaIOs
