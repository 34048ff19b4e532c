#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{
namespace
{

namespace BaseTypes = BusinessEntityModel::BaseTypes;
using BaseTypes::Identifier;
using TimePoints::Duration;
using TimePoints::TimeCode;
using TimePoints::TimePoint;

static_assert(std::is_abstract_v<MediaIO> && std::has_virtual_destructor_v<MediaIO>);
static_assert(!std::is_copy_assignable_v<MediaIO> && !std::is_move_assignable_v<MediaIO>);
static_assert(std::is_copy_constructible_v<MediaInput> && std::is_copy_constructible_v<MediaOutput>);

using AssetReference = BaseTypes::SharedReference<MediaAssets::MediaAsset>;
const TimeCode timeCode(1, false, TimePoints::Rate(25), true);

/// Claims any origin, as a boundary of another library might.
class ForeignBoundary : public Boundary
{
public:
    explicit ForeignBoundary(BoundaryOrigin origin) : origin_(origin) {}
    BoundaryOrigin Origin() const override { return origin_; }
    std::unique_ptr<Boundary> Clone() const override { return nullptr; }
    bool Equals(const Boundary& other) const override { return this == &other; }
    bool IsEmpty() const override { return false; }

private:
    BoundaryOrigin origin_;
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
            EXPECT_TRUE(clone->Equals(*left) && left->Equals(*clone));
        }
    }
    EXPECT_TRUE(BoundaryRelative().Equals(BoundaryRelative(BoundaryOrigin::RelativeToCorrespondingMediaBoundary, 0)));
}

TEST(MediaInput, KeepsItsCapacitiesConsistent)
{
    const struct
    {
        std::vector<std::pair<char, std::int64_t>> settings; // 't'otal or 'r'emaining capacity
        std::int64_t remaining;
        std::int64_t total;
    } rows[] = {
        {{{'t', 100}, {'r', 150}}, 150, 150}, {{{'r', 150}, {'t', 100}}, 100, 100},
        {{{'t', 100}, {'r', 40}}, 40, 100},   {{{'r', 40}, {'t', 100}}, 40, 100},
        {{{'r', 7}, {'t', -5}}, 0, 0},        {{{'r', -5}}, -5, 0},
        {{{'r', -5}, {'t', -5}}, -5, 0},      {{{'t', INT64_MAX}, {'r', INT64_MIN}, {'t', INT64_MIN}}, INT64_MIN, 0},
    };
    for (const auto& row : rows)
    {
        MediaInput channel;
        for (const auto& [kind, nanoseconds] : row.settings)
        {
            Duration capacity(nanoseconds);
            kind == 't' ? channel.TotalCapacity(capacity) : channel.RemainingCapacity(capacity);
        }
        EXPECT_EQ(channel.RemainingCapacity().Nanoseconds(), row.remaining) << &row - rows;
        EXPECT_EQ(channel.TotalCapacity().Nanoseconds(), row.total) << &row - rows;
    }
}

template <typename Channel>
using Changes = std::vector<std::function<void(Channel&)>>;

/// Applies each change, those of any channel first, to a channel of its own: each makes it differ from the default one
/// and from all others, and a copy and a moved-to channel are equal to it.
template <typename Channel>
void CheckEquality(const Changes<Channel>& changes)
{
    Changes<Channel> all = {
        [](Channel&) {},
        [](Channel& channel) { channel.Id(Identifier("x")); },
        [](Channel& channel) { channel.Name("x"); },
        [](Channel& channel) { channel.MediaAssetOnAir(AssetReference(Identifier("x"))); },
        [](Channel& channel) { channel.Metadata().Set(std::make_shared<PelOperatorMetadataProfile>()); },
        [](Channel& channel) { channel.PrimaryTimecodeType(MediaAssets::TimecodePrimary::User); },
    };
    all.insert(all.end(), changes.begin(), changes.end());
    std::vector<Channel> channels(all.size());
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i](channels[i]);
    for (std::size_t i = 0; i < all.size(); ++i)
    {
        for (std::size_t j = 0; j < all.size(); ++j)
            EXPECT_EQ(channels[i] == channels[j], i == j) << i << ' ' << j;
        Channel copy(channels[i]);
        EXPECT_TRUE(copy == channels[i]) << i;
        const Channel moved(std::move(copy));
        EXPECT_TRUE(moved == channels[i]) << i;
    }
}

TEST(MediaInput, IsEqualMemberByMember)
{
    Duration one(1);
    CheckEquality<MediaInput>({
        [](MediaInput& channel) { channel.RecordingStatus(RecordingStatus::Pause); },
        [](MediaInput& channel) { channel.LastTimePoint(TimePoint(0)); },
        [](MediaInput& channel) { channel.LastTodTimecode(timeCode); },
        [](MediaInput& channel) { channel.LastUserTimecode(timeCode); },
        [](MediaInput& channel) { channel.TotalCapacity(Duration(1)); },
        [&](MediaInput& channel) { channel.RemainingCapacity(one); },
    });
    EXPECT_EQ(MediaInput().GetMode(), MediaIO::Mode::Input);
}

TEST(MediaOutput, IsEqualMemberByMember)
{
    Duration one(1);
    CheckEquality<MediaOutput>({
        [](MediaOutput& channel) { channel.PlayingStatus(PlayingStatus::Cueing); },
        [](MediaOutput& channel) { channel.SpeedOnAir(Speed(1, 2)); },
        [](MediaOutput& channel) { channel.GlobalLoopMode(PlayingLoopMode::Bounce); },
        [&](MediaOutput& channel) { channel.RemainingTime(one); },
        [](MediaOutput& channel) { channel.CurrentTimePointOnAir(TimePoint(0)); },
        [](MediaOutput& channel) { channel.TodTimecodeOnAir(timeCode); },
        [](MediaOutput& channel) { channel.UserTimecodeOnAir(timeCode); },
        [](MediaOutput& channel) { channel.Sequence(SequenceOutput()); },
        [](MediaOutput& channel) { channel.InBoundary(std::make_unique<BoundaryRelative>()); },
        [](MediaOutput& channel) { channel.OutBoundary(std::make_unique<BoundaryRelative>()); },
    });
    EXPECT_EQ(MediaOutput().GetMode(), MediaIO::Mode::Output);
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
        EXPECT_TRUE(*boundary != nullptr && (*boundary)->IsEmpty());

    auto& self = moved;
    moved = std::as_const(self);
    moved = std::move(self);
    EXPECT_EQ(*moved.InBoundary(), *channel.InBoundary());

    channel.InBoundary(nullptr);
    EXPECT_EQ(*channel.InBoundary(), BoundaryAbsolute());
    channel.OutBoundary(std::make_unique<ForeignBoundary>(BoundaryOrigin::Absolute));
    EXPECT_EQ(*MediaOutput(channel).OutBoundary(), BoundaryAbsolute()); // it has no clone
}

TEST(SequenceOutput, IsEqualFieldByField)
{
    SequenceOutput::AssetBlockOutput block;
    block.MediaAssetRef(std::make_shared<MediaAssets::MediaAsset>());
    EXPECT_EQ(block, SequenceOutput::AssetBlockOutput()); // by identifier, whatever the object
    block.Id(Identifier("block"));
    BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence> reference(Identifier("sequence"));
    std::vector<SequenceOutput> different(5);
    different[1].SequenceOnAir(reference);
    different[2].AssetBlockOnAir(block);
    different[3].NextAssetBlockOnAir(block);
    different[4].EditMode(true);
    for (const auto& left : different)
    {
        for (const auto& right : different)
            EXPECT_EQ(left == right, &left == &right) << &left - &different[0] << ' ' << &right - &different[0];
    }
    different[3].NextAssetBlockOnAir().Undefine();
    EXPECT_EQ(different[3], different[0]);
}

TEST(PelOperatorMetadataProfile, IsEqualToOperatorProfilesAlone)
{
    PelOperatorMetadataProfile profile;
    EXPECT_EQ(profile.ToString(), "qiv.peloperator");
    EXPECT_EQ(profile.ServerId(), 0);
    EXPECT_EQ(profile.Index(), 0);
    const auto clone = profile.Clone();
    EXPECT_EQ(*clone, profile);
    profile.ServerId(10);
    EXPECT_NE(*clone, profile);
    profile.ServerId(0);
    profile.Index(-1);
    EXPECT_NE(*clone, profile);
    const BaseTypes::GenericMetadataProfile generic(profile.FullyQualifiedName());
    EXPECT_FALSE(profile == generic);
    EXPECT_FALSE(generic == profile);
}

TEST(Node, IsEqualFieldByField)
{
    const std::vector<std::string> gbe = {"10.0.0.1", "10.0.0.2"};
    using Nodes::Node;
    const std::vector<Node> different = {
        Node({"n"}, 1, "host", "ip", gbe, "chassis", "revision", "version"),
        Node({"N"}, 1, "host", "ip", gbe, "chassis", "revision", "version"),
        Node({"n"}, 2, "host", "ip", gbe, "chassis", "revision", "version"),
        Node({"n"}, 1, "ip", "host", gbe, "chassis", "revision", "version"),
        Node({"n"}, 1, "host", "", gbe, "chassis", "revision", "version"),
        Node({"n"}, 1, "host", "ip", {"10.0.0.2", "10.0.0.1"}, "chassis", "revision", "version"),
        Node({"n"}, 1, "host", "ip", gbe, "", "revision", "version"),
        Node({"n"}, 1, "host", "ip", gbe, "chassis", "", "version"),
        Node({"n"}, 1, "host", "ip", gbe, "chassis", "revision", ""),
        Node(),
    };
    for (std::size_t i = 0; i < different.size(); ++i)
    {
        for (std::size_t j = 0; j < different.size(); ++j)
            EXPECT_EQ(different[i] == different[j], i == j) << i << ' ' << j;
    }
    EXPECT_EQ(Node(), Node({}, Node::UndefinedSerialNumber(), "", "", {}, "", "", ""));
}

} // namespace
} // namespace Qiv::DataModel::Tarvonel::MediaIOs
