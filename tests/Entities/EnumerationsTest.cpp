#include <Qiv/DataModel/MediaAssets/TimecodePrimary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryOrigin.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingLoopMode.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingStatus.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/RecordingStatus.h>

#include <gtest/gtest.h>

#include <vector>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{
namespace
{

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
        EXPECT_EQ(convert(texts[i]), value) << texts[i];
        EXPECT_EQ(To<Enumeration>(texts[i]), value) << texts[i];
        const std::string buffer = '"' + texts[i] + '"';
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
