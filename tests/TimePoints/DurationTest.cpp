#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/QivDurationFormatter.h>
#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/TimeCode.h>
#include <Qiv/TimePoints/TimePoint.h>

#include "CaseFiles.h"
#include "ThrownText.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <locale>
#include <sstream>

namespace Qiv::TimePoints
{
namespace
{

static_assert(sizeof(Duration) == 8 && std::is_trivially_copyable_v<Duration>);
static_assert(sizeof(TimePoint) == 8 && std::is_trivially_copyable_v<TimePoint>);
static_assert(std::is_convertible_v<std::chrono::nanoseconds, Duration> && !std::is_convertible_v<int, Duration>);
static_assert(TimePoint().Nanoseconds() == -9223372036854775807 && Duration().Nanoseconds() == 0);

constexpr std::int64_t minimum = INT64_MIN;
constexpr std::int64_t maximum = INT64_MAX;

TEST(QivDurationParser, TakesAMillionCharacters)
{
    const QivDurationParser parser;
    EXPECT_EQ(Duration::Parse("-" + std::string(1000000, '0') + "5", parser).ToString(QivDurationFormatter()), "-5");
    EXPECT_EQ(parser.Parse(std::string(1000000, '9')), Duration(-1));
}

void CheckDuration(const Tests::Case& each)
{
    std::string outcome;
    const auto message = ThrownText<std::invalid_argument>(
        [&] { outcome = QivDurationParser().Parse(each.Text("text")).ToString(QivDurationFormatter()); });
    EXPECT_EQ(message, each.Has("message") ? each.Text("message") : "nothing thrown");
    EXPECT_EQ(outcome, each.Text("nanoseconds"));
}
const bool areRegistered = Tests::RegisterCases("timepoints/Durations.json", CheckDuration);

static_assert(QivDurationFormatter::MaximumLength == std::string_view("-9223372036854775808").size());

TEST(Duration, NumbersSamplesExactly)
{
    for (const Rate& rate : {Rate(25), Rate(30000, 1001), Rate(60000, 1001), Rate(50), Rate(1, 7), Rate(2147483647),
                             Rate(1000000000, 999999937), Rate(1, 2147483647), Rate(999999937, 2147483647)})
    {
        const std::int64_t period = rate.Denominator() * 1000000000; // of rate.Numerator() samples
        const std::int64_t limit = maximum / std::max(period, rate.Numerator());
        for (const std::int64_t n :
             {std::int64_t{0}, std::int64_t{1}, std::int64_t{-1}, std::int64_t{29}, limit, -limit})
        {
            if (std::abs(n) > limit)
                continue;
            EXPECT_EQ(Duration::FromSampleNumber(n * rate.Numerator(), rate), Duration(n * period));
            EXPECT_EQ(Duration(n * period).GetSampleNumber(rate), n * rate.Numerator());
            if (rate.Numerator() > 1000000000)
                continue;
            const Duration begin = Duration::FromSampleNumber(n, rate);
            EXPECT_EQ(begin.GetSampleNumber(rate), n);
            EXPECT_EQ((begin - Duration(1)).GetSampleNumber(rate), n - 1);
            EXPECT_EQ((begin + Duration(1)).AlignWith(rate), begin);
        }
    }
    EXPECT_EQ(Duration::FromSampleNumber(1, Rate(30000, 1001)), Duration(33366667)); // 33366666.67 rounded up
    EXPECT_EQ(TimePoint(79999999).AlignWith(Rate(25)), TimePoint(40000000));
    for (const Rate& rate : {Rate(0), Rate(25, 0), Rate(-25), Rate(2147483648), Rate(1, maximum)})
    {
        EXPECT_THROW(Duration::FromSampleNumber(1, rate), std::invalid_argument);
        EXPECT_THROW(TimePoint(1).AlignWith(rate), std::invalid_argument);
    }
    EXPECT_EQ(Duration(minimum).GetSampleNumber(Rate(25)), -230584300922);
    Duration::FromSampleNumber(minimum, Rate(1, 2147483647)); // wraps around
}

TEST(Duration, CalculatesWithinTwosComplement)
{
    using namespace std::chrono_literals;
    EXPECT_EQ(Duration(maximum) + Duration(1), Duration(minimum));
    EXPECT_EQ(-Duration(minimum) - Duration(1), Duration(maximum));
    EXPECT_EQ(2 * Duration(maximum) * minimum, Duration(0));
    EXPECT_EQ(Duration(minimum) / -1, Duration(minimum));
    EXPECT_EQ(Duration(-7) / 2, Duration(-3));
    EXPECT_THROW(Duration(1) / 0, std::domain_error);
    EXPECT_EQ(Duration::FromSeconds(-2) + Duration::FromMilliseconds(1500), Duration(-500ms));
    EXPECT_EQ(TimePoint(maximum) - TimePoint(-1), Duration(minimum));
    EXPECT_EQ(TimePoint(5) + Duration(3) - Duration(10), TimePoint(-2ns));
    EXPECT_EQ(static_cast<std::chrono::nanoseconds>(TimePoint(5)) + std::chrono::nanoseconds(Duration(2)), 7ns);
    EXPECT_TRUE(TimePoint::Empty().IsEmpty());
    EXPECT_TRUE(Duration::Empty().IsEmpty());
    EXPECT_FALSE(TimePoint(0).IsEmpty());
    EXPECT_LT(Duration(minimum).CompareTo(Duration(maximum)), 0);
    EXPECT_GT(TimePoint(2).CompareTo(TimePoint(1)), 0);
    EXPECT_LT(TimePoint(1).CompareTo(TimePoint(2)), 0);
    EXPECT_LT(Duration(-1), Duration(0));
    EXPECT_LE(TimePoint(-1), TimePoint(-1));
    EXPECT_LT(TimePoint::Empty(), TimePoint(0));
}

struct Grouping : std::numpunct<char>
{
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Values, WriteAndHashAsValuesDo)
{
    const std::locale previous = std::locale::global(std::locale(std::locale::classic(), new Grouping));
    std::ostringstream stream;
    stream << Rate(30000, -1001) << ' ' << Duration(-40000000) << ' ' << TimePoint(1234567) << ' ' << std::setw(27)
           << TimeCode(2016, 3, 21, 14, 5, 9, 7, Rate(30000), false);
    std::locale::global(previous);
    EXPECT_EQ(stream.str(), "30000/-1001 -40000000 1234567 2016-03-21T14:05:09:07@30000");

    const auto hash = [](const auto& value) { return std::hash<std::decay_t<decltype(value)>>()(value); };
    EXPECT_EQ(hash(TimeCode()), hash(TimeCode::Empty()));
    const TimeCode drop(0, true, Rate(30), true);
    EXPECT_NE(hash(drop), hash(TimeCode(0, false, Rate(30), true)));
    EXPECT_NE(hash(drop), hash(TimeCode(0, true, Rate(30), false)));
    EXPECT_NE(hash(drop), hash(drop + 1));
    EXPECT_NE(hash(Rate(30, 1)), hash(Rate(1, 30)));
    EXPECT_NE(hash(Duration(1)), hash(Duration(1 + (std::int64_t{1} << 32)))); // also where size_t has 32 bits
    EXPECT_NE(hash(TimePoint(1)), hash(TimePoint(2)));
}

} // namespace
} // namespace Qiv::TimePoints
