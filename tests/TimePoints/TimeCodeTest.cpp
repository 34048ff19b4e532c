#include <Qiv/TimePoints/TimeCode.h>

#include <Qiv/TimePoints/CalendarTools.h>
#include <Qiv/TimePoints/Details/SampleArithmetic.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>
#include <Qiv/TimePoints/TimeCodeBuilder.h>

#include "CaseFiles.h"
#include "ThrownText.h"

#include <gtest/gtest.h>

#include <random>
#include <unordered_set>

namespace Qiv::TimePoints
{
namespace
{

static_assert(std::is_trivially_copyable_v<TimeCode> && std::is_nothrow_copy_constructible_v<TimeCode>);
// The flag at a rate without drop-frame counting: the ten-minute correction is added, nothing is taken off.
static_assert(Details::TotalSampleAt(25, true, 1, {0, 25, 0, 3}) == 25 * (86400 + 1500) + 4 + 3);

std::string Print(std::int64_t year, std::initializer_list<std::int64_t> fields, bool isDrop, std::int64_t rate)
{
    std::string text = std::to_string(year);
    const char* separator = isDrop ? "--T::;" : "--T:::";
    for (const std::int64_t field : fields)
        text += *separator++ + std::string(field < 10 ? "0" : "") + std::to_string(static_cast<std::int32_t>(field));
    return text + "@" + std::to_string(rate);
}

// The loops that define day counts and skipped labels; the library has closed forms.

bool IsLeap(std::int64_t year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

std::int64_t DaysByLoop(std::int32_t year, std::int32_t month, std::int32_t day)
{
    std::int64_t days = 0;
    for (std::int32_t y = 1900; y < year; ++y)
        days += IsLeap(y) ? 366 : 365;
    for (std::int32_t m = 1; m < month; ++m)
        days += CalendarTools::DayPerMonth(year, m);
    return days + day - 1;
}

std::int64_t SkippedByLoop(std::int64_t rate, std::int64_t samplePerDay, std::int64_t samples)
{
    const std::int64_t step = rate == 60 ? 4 : 2;
    const std::int64_t minute = rate == 60 ? 3600 : 1800;
    std::int64_t s = samples % samplePerDay;
    for (std::int64_t added = 0, k = 1; k != 0; added += k)
    {
        k = s / minute - s / (10 * minute) - added;
        s += k * step;
    }
    return s;
}

std::string PrintFields(const TimeCode& t)
{
    return Print(t.Year(), {t.Month(), t.Day(), t.Hour(), t.Minute(), t.Second(), t.Sample()}, t.IsDrop(),
                 t.Rate().Numerator());
}

using LabelsOfADay = testing::TestWithParam<int>;

TEST_P(LabelsOfADay, AreConsecutiveSamplesAndFormatBackToThemselves)
{
    const bool isDrop = GetParam() < 0;
    const int rate = std::abs(GetParam());
    const std::int64_t first = TimeCode(2016, 2, 29, 0, 0, 0, 0, Rate(rate), isDrop).TotalSample();
    std::vector<std::string> frames;
    for (int frame = 0; frame < rate; ++frame)
        frames.push_back((frame < 10 ? "0" : "") + std::to_string(frame) + "@" + std::to_string(rate));
    std::int64_t total = first;
    std::string label;
    char second[32], buffer[QivTimeCodeFormatter::MaximumLength];
    for (int time = 0; time < 86400; ++time)
    {
        std::snprintf(second, sizeof second, "2016-02-29T%02d:%02d:%02d%c", time / 3600, time / 60 % 60, time % 60,
                      isDrop ? ';' : ':');
        const bool isGap = isDrop && time % 60 == 0 && time % 600 != 0;
        for (int frame = isGap ? rate / 15 : 0; frame < rate; ++frame, ++total)
        {
            label.assign(second).append(frames[static_cast<std::size_t>(frame)]);
            ASSERT_TRUE(QivTimeCodeFormatter::FormatTo(TimeCode(total, isDrop, Rate(rate), true), buffer) == label)
                << label << " is written as " << buffer;
            TimeCode read;
            if (frame >= 100)
                continue; // no text of a time code
            ASSERT_TRUE(QivTimeCodeParser::TryRead(label, read)) << label;
            ASSERT_EQ(read.TotalSample(), total) << label;
        }
    }
    EXPECT_EQ(total - first, TimeCode(0, isDrop, Rate(rate), true).SamplePerDay());
}

// Drop-frame rates are negative here.
INSTANTIATE_TEST_SUITE_P(TimeCode, LabelsOfADay, testing::Values(-30, -60, 24, 25, 30, 48, 50, 60, 100, 120));

TEST(TimeCode, AgreesWithTheDefiningLoopsForAnyFields)
{
    std::mt19937_64 random(20160321);
    const auto within = [&](std::int64_t first, std::int64_t last)
    { return std::uniform_int_distribution<std::int64_t>(first, last)(random); };
    for (const std::int64_t rate : {1, 24, 25, 30, 50, 60, 119, 49710, 49711, 30000, 1000000, 2147483647, -1, -30})
        for (int i = 0; i < 3000; ++i)
        {
            const bool hasDate = i % 7 != 0;
            TimeCode timeCode(0, i % 2 == 0, Rate(rate), hasDate);
            const std::int64_t days =
                i % 3 == 0 ? within(-3, 3) : within(-1000, rate > 1000000 ? 40000 : 132220); // in 64 bits, to 2261
            timeCode += days * timeCode.SamplePerDay() + within(-100000, 100000);
            ASSERT_EQ(PrintFields(timeCode), timeCode.ToString());
            ASSERT_EQ(timeCode.AddSkippedHmsSamplesInNtscDrop(timeCode.TotalSample()),
                      SkippedByLoop(rate, timeCode.SamplePerDay(), timeCode.TotalSample()));

            const auto year = static_cast<std::int32_t>(within(-500, 4000));
            const auto month = static_cast<std::int32_t>(within(-2, 13));
            const auto any = [&] { return static_cast<std::int32_t>(within(-5000, 5000)); };
            const std::int32_t day = any(), hour = any() / 10, minute = any(), second = any(), sample = any();
            ASSERT_EQ(TimeCode::DateToDays(year, month, day), DaysByLoop(year, month, day)) << year << " " << month;
            timeCode.DateTimeToSample(year % 2000, month, day, hour, minute, second, sample);
            const bool isDrop = timeCode.IsDrop();
            ASSERT_EQ(timeCode.TotalSample(),
                      DaysByLoop(year % 2000, month, day) * timeCode.SamplePerDay() +
                          hour * timeCode.SamplePerHour(isDrop) + minute * timeCode.SamplePerMinute(isDrop) +
                          second * timeCode.SamplePerSecond() + (isDrop ? rate / 15 * (minute / 10) : 0) + sample);
        }
    // No loop gets that far; 400 years have 146097 days.
    EXPECT_EQ(TimeCode::DateToDays(2147483647, 13, 1) - TimeCode::DateToDays(2047, 13, 1),
              146097LL * (2147481600 / 400));
    EXPECT_EQ(TimeCode::DateToDays(2023, 2147483647, 1), TimeCode::DateToDays(2024, 1, 1));
}

TEST(TimeCode, KeepsTheKnownCounts)
{
    EXPECT_EQ(TimeCode::DateToDays(1970, 1, 1), 25567);
    EXPECT_EQ(TimeCode(10, 0, 0, 0, Rate(25), false).TotalSample(), 25567LL * 2160000 + 36000 * 25);
    EXPECT_EQ(TimeCode(0, true, Rate(30000, 1001), true).SamplePerDay(), 30000LL * 86400);
    const TimeCode drop30(0, true, Rate(30), true);
    EXPECT_EQ(drop30.AddSkippedHmsSamplesInNtscDrop(1800), 1802);
    EXPECT_EQ(drop30.AddSkippedHmsSamplesInNtscDrop(17982), 18000);
    EXPECT_EQ(drop30.AddSkippedHmsSamplesInNtscDrop(2589408), 0);
    EXPECT_EQ(TimeCode().ToString(), "1900-01-01T00:00:00:00@50");
    EXPECT_TRUE(TimeCode().IsEmpty());
    EXPECT_EQ(TimeCode(), TimeCode(0, false, Rate(50, 1), true));
    EXPECT_FALSE(TimeCode(0, true, Rate(25), true).IsDrop());
    EXPECT_EQ(CalendarTools::DayPerMonth(2000, 0) + CalendarTools::DayPerMonth(true, 13), 0);
}

TEST(TimeCode, HasNoUndefinedBehaviourForAnyFields)
{
    constexpr std::int64_t minimum = INT64_MIN, maximum = INT64_MAX;
    std::unordered_set<TimeCode> different;
    for (const std::int64_t rate : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{30}, std::int64_t{60}, minimum,
                                    maximum, std::int64_t{1} << 57, std::int64_t{1} << 62, maximum / 86400})
        for (const std::int64_t total : {minimum, minimum + 1, std::int64_t{-1}, std::int64_t{1} << 39, maximum})
        {
            TimeCode timeCode(total, true, Rate(rate), true);
            const std::string text = timeCode.ToString();
            EXPECT_LE(text.size(), QivTimeCodeFormatter::MaximumLength);
            EXPECT_EQ(text.substr(text.find('-', 1)), PrintFields(timeCode).substr(text.find('-', 1))) << text;
            timeCode.AddSkippedHmsSamplesInNtscDrop(total);
            timeCode.DateTimeToSample(INT32_MAX, INT32_MIN, INT32_MIN, INT32_MAX, INT32_MIN, INT32_MIN, INT32_MAX);
            ++--timeCode;
            timeCode += total;
            if (rate != 0)
            {
                EXPECT_TRUE(different.insert(timeCode).second) << text;
            }
        }
    EXPECT_EQ(TimeCode(maximum, false, Rate(0), true).ToString(), "1900-01-01T00:00:00:00@0");
    EXPECT_EQ(TimeCode(-25, false, Rate(25), true).ToString(), "1900-01-01T00:00:0-1:00@25");
    EXPECT_EQ(TimeCode(-2160001, false, Rate(25), true).ToString(), "1900-01-00T00:00:00:0-1@25");
    EXPECT_EQ(TimeCode(-1800000, true, Rate(30), true).ToString(), "1900-01-01T0-16:0-41:00;0-2@30");
    EXPECT_EQ(TimeCode(-103680000, false, Rate(-30), true).ToString(), "1900-02-10T00:00:00:00@-30");
    EXPECT_EQ(TimeCode(minimum, false, Rate(1), true).ToString(), "1900-01-0-579025219T0-15:0-30:0-8:00@1");
    EXPECT_EQ(TimeCode(maximum, false, Rate(1), true).Hour(), 15);
    EXPECT_EQ(TimeCode(minimum, false, Rate(25), true) - TimeCode(maximum, false, Rate(25), true), 1);
}

TEST(TimeCode, MovesAndComparesByExistingLabels)
{
    const TimeCode before(2016, 3, 21, 0, 0, 59, 29, Rate(30), true);
    TimeCode timeCode = before;
    EXPECT_EQ((timeCode++).ToString(), "2016-03-21T00:00:59;29@30");
    EXPECT_EQ(timeCode.ToString(), "2016-03-21T00:01:00;02@30");
    EXPECT_EQ((timeCode--) - before, 1);
    EXPECT_EQ(timeCode, before);
    EXPECT_EQ((before + 2589408).ToString(), "2016-03-22T00:00:59;29@30");
    EXPECT_EQ((before - 30).ToString(), "2016-03-21T00:00:58;29@30");
    for (const std::int64_t distance : {-1, 0, 1})
    {
        EXPECT_EQ(before<before + distance, distance> 0);
        EXPECT_EQ(before > before + distance, distance < 0);
        EXPECT_EQ(before <= before + distance, distance >= 0);
        EXPECT_EQ(before >= before + distance, distance <= 0);
    }

    const TimeCode undated(before.TotalSample(), true, Rate(30), false);
    EXPECT_NE(undated, before);
    EXPECT_LE(undated, before);
    EXPECT_GE(undated, before);
    EXPECT_TRUE(undated.IsCompatible(before));
    const TimeCode nonDrop(before.TotalSample(), false, Rate(30), true);
    for (const auto& use : {+[](const TimeCode&a, const TimeCode&b) { a.Substract(b); },
                            +[](const TimeCode&a, const TimeCode&b) { static_cast<void>(a < b); }})
    {
        const auto text = ThrownText<std::invalid_argument>([&] { use(before, nonDrop); });
        EXPECT_NE(text.find(nonDrop.ToString(), text.find(before.ToString())), std::string::npos) << text;
    }
}

void CheckFields(const Tests::Case& each)
{
    const auto field = [&](const char* list, int i) { return each[list][i].asInt(); };
    auto builder =
        TimeCodeBuilder().ClockTime(field("clock", 0), field("clock", 1), field("clock", 2), field("clock", 3));
    builder.Date(field("date", 0), field("date", 1), field("date", 2)).IsDrop(each["isDropFrame"].asBool());
    builder.Rate(Rate(field("rate", 0), field("rate", 1)));
    const auto message = each.Has("message") ? each.Text("message") : "nothing thrown";
    EXPECT_EQ(builder.IsValidToBuild(), each.Has("written"));
    EXPECT_EQ(ThrownText<std::out_of_range>([&] { builder.IsValidToBuildWithexception(); }), message);
    TimeCode built;
    EXPECT_EQ(ThrownText<std::out_of_range>([&] { built = builder.Build(); }), message);
    EXPECT_EQ(each.Has("written") ? built.ToString() : "", each.Text("written"));
}
const bool areRegistered = Tests::RegisterCases("timepoints/Fields.json", CheckFields);

TEST(TimeCodeBuilder, HoldsTheFirstLabelOf1970WithoutDate)
{
    EXPECT_EQ(TimeCodeBuilder().Build(), TimeCode(25567LL * 86400 * 50, false, Rate(50), false));
    EXPECT_TRUE(TimeCodeBuilder().Date(2000, 1, 1).ClockTime(1, 2, 3, 4).Build().HasDate());
    EXPECT_EQ(TimeCodeBuilder().Date(2000, 1, 1).HasDate(false).Build(), TimeCodeBuilder().Build());
}

TEST(TimeCodeBuilder, ChecksTheDateAlsoWithoutOne)
{
    EXPECT_EQ(ThrownText<std::out_of_range>([] { TimeCodeBuilder().Day(32).Build(); }),
              "day 32is negative or greater than 31 in month 1");
    EXPECT_THROW(TimeCode(24, 0, 0, 0, Rate(25), false), std::out_of_range);
}

} // namespace
} // namespace Qiv::TimePoints
