#include <Qiv/DataModel/Tarvonel/MediaIOs/Parser/SpeedParser.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>

#include "ThrownText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{
namespace
{

static_assert(std::is_trivially_copyable_v<Speed> && sizeof(Speed) == 8);
static_assert(Speed::Undefined().IsUndefined() && Speed().Numerator() == 0 && Speed().Denominator() == 0);
static_assert(Speed::Undefined().Denominator() == Speed::UndefinedDenominator());

std::vector<Speed> Speeds()
{
    std::vector<Speed> speeds;
    for (const std::int32_t numerator : {INT32_MIN, INT32_MIN + 1, -1000, -3, -2, -1, 0, 1, 2, 3, 1000, INT32_MAX})
    {
        for (const std::uint32_t denominator :
             {0u, 1u, 2u, 3u, 4u, 200u, 1000u, 2147483648u, UINT32_MAX - 1, UINT32_MAX})
            speeds.emplace_back(numerator, denominator);
    }
    std::mt19937 random(2);
    for (int i = 0; i < 200; ++i)
        speeds.emplace_back(static_cast<std::int32_t>(random()), static_cast<std::uint32_t>(random()) >> (i % 32));
    return speeds;
}

// The oracles compute with 64 bits of mantissa, which hold every product and decide every quotient used here.
static_assert(std::numeric_limits<long double>::digits >= 64);

TEST(Speed, ComparesValuesExactlyAndUndefinedFirst)
{
    const auto speeds = Speeds();
    for (const auto& left : speeds)
    {
        for (const auto& right : speeds)
        {
            const auto product = [](const Speed& a, const Speed& b)
            { return static_cast<long double>(a.Numerator()) * static_cast<long double>(b.Denominator()); };
            const bool defined = !left.IsUndefined() && !right.IsUndefined();
            const int expected =
                defined ? (product(left, right) > product(right, left)) - (product(left, right) < product(right, left))
                        : right.IsUndefined() - left.IsUndefined();
            ASSERT_EQ(left.CompareTo(right), expected) << left.ToString() << ' ' << right.ToString();
            ASSERT_EQ(left == right, expected == 0) << left.ToString() << ' ' << right.ToString();
        }
    }
}

TEST(Speed, GivesPercentWithinThe32BitRange)
{
    const auto saturate = [](long double value)
    { return static_cast<std::int32_t>(std::clamp<long double>(value, INT32_MIN, INT32_MAX)); };
    for (const auto& speed : Speeds())
    {
        if (speed.IsUndefined())
        {
            EXPECT_EQ(speed.ToPercent(), 0);
            EXPECT_EQ(speed.ToRoundedPercent(), 0);
            EXPECT_TRUE(std::isnan(speed.ToDouble()));
            continue;
        }
        const long double percent =
            static_cast<long double>(speed.Numerator()) * 100 / static_cast<long double>(speed.Denominator());
        EXPECT_EQ(speed.ToPercent(), saturate(std::trunc(percent))) << speed.ToString();
        EXPECT_EQ(speed.ToRoundedPercent(), saturate(std::round(percent))) << speed.ToString();
        EXPECT_DOUBLE_EQ(speed.ToDouble(), static_cast<double>(percent / 100)) << speed.ToString();
    }
    EXPECT_EQ(Speed(-509, 1000).ToPercent(), -50);
    EXPECT_EQ(Speed(-509, 1000).ToRoundedPercent(), -51);
    EXPECT_EQ(Speed(1, 200).ToRoundedPercent(), 1); // a half goes away from zero
    EXPECT_EQ(Speed(-1, 200).ToRoundedPercent(), -1);
}

TEST(SpeedParser, ReadsWhatTheFormatterWritesAndNothingElse)
{
    Parser::SpeedParser parser;
    for (const auto& speed : Speeds())
    {
        const auto read = Speed::Parse(speed.ToString(), parser);
        EXPECT_EQ(read.Numerator(), speed.Numerator()) << speed.ToString();
        EXPECT_EQ(read.Denominator(), speed.Denominator()) << speed.ToString();
    }
    EXPECT_EQ(Speed(INT32_MIN, UINT32_MAX).ToString(), "-2147483648/4294967295");
    const std::string invalid[] = {"2147483648/1", "-2147483649/1", "1/4294967296", "",     "/",    "-",     "1",
                                   "1/",           "-1/",           "/1",           "-/1",  "+1/1", "--1/1", "1/-1",
                                   "1/+1",         " 1/1",          "1 /1",         "1/ 1", "1/1 ", "1//1",  "1/1/1",
                                   "1.0/1",        "1/1.0",         "1:1",          "x/1",  "1/x",  "0x1/1", "1/0x1",
                                   "1e1/1",        {"1/1\0", 4},    {"1\0/1", 4}};
    for (const auto& text : invalid)
    {
        EXPECT_FALSE(parser.IsStringFormatValid(text)) << text;
        EXPECT_THROW(parser.Parse(text), std::invalid_argument) << text;
    }
    for (const auto* const text : {"0/0", "-0/1", "00010/00000000000000000000001"})
        EXPECT_TRUE(parser.IsStringFormatValid(text)) << text;
    EXPECT_EQ(Speed::Parse("-0010/00000000000000000000003", parser).ToString(), "-10/3");
}

} // namespace
} // namespace Qiv::DataModel::Tarvonel::MediaIOs
