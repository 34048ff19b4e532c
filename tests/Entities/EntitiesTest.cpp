#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{
namespace
{

namespace BaseTypes = BusinessEntityModel::BaseTypes;
using BaseTypes::Identifier;
using TimePoints::Duration;
using TimePoints::TimePoint;

static_assert(std::is_abstract_v<MediaIO> && std::has_virtual_destructor_v<MediaIO>);
static_assert(!std::is_copy_assignable_v<MediaIO> && !std::is_move_assignable_v<MediaIO>);
static_assert(std::is_copy_constructible_v<MediaInput> && std::is_copy_constructible_v<MediaOutput>);

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
    using Settings = std::vector<std::pair<char, std::int64_t>>; // of 't'otal or 'r'emaining capacity
    const std::tuple<Settings, std::int64_t, std::int64_t> rows[] = {
        {{{'t', 100}, {'r', 150}}, 150, 150},
        {{{'r', 150}, {'t', 100}}, 100, 100},
        {{{'t', 100}, {'r', 40}}, 40, 100},
        {{{'r', 40}, {'t', 100}}, 40, 100},
        {{{'r', 7}, {'t', -5}}, 0, 0},
        {{{'r', -5}, {'t', -5}}, -5, 0},
        {{{'t', INT64_MAX}, {'r', INT64_MIN}, {'t', INT64_MIN}}, INT64_MIN, 0},
    };
    for (const auto& [settings, remaining, total] : rows)
    {
        MediaInput channel;
        for (const auto& [kind, nanoseconds] : settings)
        {
            Duration capacity(nanoseconds);
            kind == 't' ? channel.TotalCapacity(capacity) : channel.RemainingCapacity(capacity);
        }
        EXPECT_EQ(channel.RemainingCapacity(), Duration(remaining));
        EXPECT_EQ(channel.TotalCapacity(), Duration(total));
    }
}

/// Applies each change to a default value: all differ, and a copy and a moved-to value are equal to their source.
template <typename T>
void CheckEquality(std::vector<std::function<void(T&)>> changes)
{
    if constexpr (std::is_base_of_v<MediaIO, T>)
    {
        using Reference = BaseTypes::SharedReference<MediaAssets::MediaAsset>;
        changes.push_back([](T& channel) { channel.Id(Identifier("x")); });
        changes.push_back([](T& channel) { channel.Name("x"); });
        changes.push_back([](T& channel) { channel.MediaAssetOnAir(Reference(Identifier("x"))); });
        changes.push_back([](T& channel) { channel.Metadata().Set(std::make_shared<PelOperatorMetadataProfile>()); });
        changes.push_back([](T& channel) { channel.PrimaryTimecodeType(MediaAssets::TimecodePrimary::User); });
    }
    std::vector<T> values(changes.size() + 1);
    for (std::size_t i = 0; i < changes.size(); ++i)
        changes[i](values[i]);
    for (const T& left : values)
    {
        for (const T& right : values)
            EXPECT_EQ(left == right, &left == &right) << &left - &values[0] << ' ' << &right - &values[0];
        T copy(left);
        EXPECT_TRUE(copy == left) << &left - &values[0];
        EXPECT_TRUE(T(std::move(copy)) == left) << &left - &values[0];
    }
}

TEST(Entities, AreEqualMemberByMember)
{
    const TimePoints::TimeCode timeCode(1, false, TimePoints::Rate(25), true);
    Duration one(1);
    CheckEquality<MediaInput>({
        [](auto& channel) { channel.RecordingStatus(RecordingStatus::Pause); },
        [](auto& channel) { channel.LastTimePoint(TimePoint(0)); },
        [&](auto& channel) { channel.LastTodTimecode(timeCode); },
        [&](auto& channel) { channel.LastUserTimecode(timeCode); },
        [](auto& channel) { channel.TotalCapacity(Duration(1)); },
        [&](auto& channel) { channel.RemainingCapacity(one); },
    });
    CheckEquality<MediaOutput>({
        [](auto& channel) { channel.PlayingStatus(PlayingStatus::Cueing); },
        [](auto& channel) { channel.SpeedOnAir(Speed(1, 2)); },
        [](auto& channel) { channel.GlobalLoopMode(PlayingLoopMode::Bounce); },
        [&](auto& channel) { channel.RemainingTime(one); },
        [](auto& channel) { channel.CurrentTimePointOnAir(TimePoint(0)); },
        [&](auto& channel) { channel.TodTimecodeOnAir(timeCode); },
        [&](auto& channel) { channel.UserTimecodeOnAir(timeCode); },
        [](auto& channel) { channel.Sequence(SequenceOutput()); },
        [](auto& channel) { channel.InBoundary(std::make_unique<BoundaryRelative>()); },
        [](auto& channel) { channel.OutBoundary(std::make_unique<BoundaryRelative>()); },
    });
    SequenceOutput::AssetBlockOutput block;
    block.MediaAssetRef(std::make_shared<MediaAssets::MediaAsset>());
    EXPECT_EQ(block, SequenceOutput::AssetBlockOutput()); // by identifier, whatever the object
    block.Id(Identifier("block"));
    BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence> reference(Identifier("sequence"));
    CheckEquality<SequenceOutput>({
        [&](auto& sequence) { sequence.SequenceOnAir(reference); },
        [&](auto& sequence) { sequence.AssetBlockOnAir(block); },
        [&](auto& sequence) { sequence.NextAssetBlockOnAir(block); },
        [](auto& sequence) { sequence.EditMode(true); },
    });
    using Nodes::Node;
    const auto make = [](auto... fields) { return [=](Node& node) { node = Node(fields...); }; };
    using Addresses = std::vector<std::string>;
    CheckEquality<Node>({
        make(Identifier("n"), 1, "host", "ip", Addresses{"1", "2"}, "chassis", "revision", "version"),
        make(Identifier("N"), 1, "host", "ip", Addresses{"1", "2"}, "chassis", "revision", "version"),
        make(Identifier("n"), 2, "host", "ip", Addresses{"1", "2"}, "chassis", "revision", "version"),
        make(Identifier("n"), 1, "ip", "host", Addresses{"1", "2"}, "chassis", "revision", "version"),
        make(Identifier("n"), 1, "host", "", Addresses{"1", "2"}, "chassis", "revision", "version"),
        make(Identifier("n"), 1, "host", "ip", Addresses{"2", "1"}, "chassis", "revision", "version"),
        make(Identifier("n"), 1, "host", "ip", Addresses{"1", "2"}, "", "revision", "version"),
        make(Identifier("n"), 1, "host", "ip", Addresses{"1", "2"}, "chassis", "", "version"),
        make(Identifier("n"), 1, "host", "ip", Addresses{"1", "2"}, "chassis", "revision", ""),
    });
    PelOperatorMetadataProfile profile;
    const BaseTypes::GenericMetadataProfile generic(profile.FullyQualifiedName());
    EXPECT_FALSE(profile == generic || generic == profile);
    EXPECT_EQ(*profile.Clone(), profile);
    CheckEquality<PelOperatorMetadataProfile>({
        [](auto& changed) { changed.ServerId(10); },
        [](auto& changed) { changed.Index(-1); },
    });
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

} // namespace
} // namespace Qiv::DataModel::Tarvonel::MediaIOs
