#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>
#include <Qiv/TimePoints/TimeCodeBuilder.h>

#include "CaseFiles.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <regex>
#include <sstream>

namespace Qiv::TimePoints
{
namespace
{

/// The time code as text with total sample, or the type and text of the exception.
template <typename Function>
std::string OutcomeOf(const Function& read)
{
    try
    {
        const TimeCode timeCode = read();
        return timeCode.ToString() + " #" + std::to_string(timeCode.TotalSample());
    }
    catch (const std::logic_error& error)
    {
        const std::string kind = typeid(error) == typeid(std::out_of_range)       ? "out of range: "
                                 : typeid(error) == typeid(std::invalid_argument) ? "invalid argument: "
                                                                                  : "another class: ";
        return kind + error.what();
    }
}

std::string Outcome(const std::string& text)
{
    return OutcomeOf([&] { return QivTimeCodeParser().Parse(text); });
}

/// Reads with the regular expressions that define the two forms.
TimeCode ReadByExpression(const std::string& text)
{
    static const std::regex dated(
        R"(^([1-9]\d\d\d)-([0-1]\d)-([0-3]\d)T([0-2]\d):([0-5]\d):([0-5]\d)(:|;)(\d\d)@(\d+)$)");
    static const std::regex undated(R"(^([0-2]\d):([0-5]\d):([0-5]\d)(:|;)(\d\d)@(\d+)$)");
    std::smatch match;
    const bool hasDate = std::regex_search(text, match, dated);
    if (!hasDate && !std::regex_search(text, match, undated))
        throw std::invalid_argument("QivTimeCodeParser the string '" + text + "' has not the expected format.");
    const auto number = [&](std::size_t group) { return std::stoi(match[group].str()); };
    const std::size_t clock = hasDate ? 4 : 1;
    TimeCodeBuilder builder;
    if (hasDate)
        builder.Date(number(1), number(2), number(3));
    return builder.ClockTime(number(clock), number(clock + 1), number(clock + 2), number(clock + 4))
        .IsDrop(match[clock + 3] == ";")
        .Rate(number(clock + 5))
        .Build();
}

TEST(QivTimeCodeParser, AgreesWithTheRegularExpressionsOnGeneratedAndMutatedTexts)
{
    std::mt19937 random(25);
    const auto below = [&](std::size_t end) { return random() % end; };
    const auto two = [&](std::size_t end) { return std::to_string(100 + below(end)).substr(1); };
    std::istringstream words("25 30 60 30 60 0 1 120 00000000000025 2147483647 2147483648 4294967321 "
                             "99999999999999999999 x");
    const std::vector<std::string> rates(std::istream_iterator<std::string>(words), {});
    const std::string replacements("0123456789:;-T@ +./x\n\0\xB0\xFF", 24);
    const QivTimeCodeParser parser;
    int valid = 0;
    for (int i = 0; i < 30000; ++i)
    {
        std::string text;
        if (below(3) != 0)
            text = std::to_string(1890 + below(380)) + "-" + two(14) + "-" + two(34) + "T";
        text += two(26) + ":" + two(61) + ":" + two(below(2) == 0 ? 1 : 61) + (below(2) == 0 ? ":" : ";");
        text += two(below(2) == 0 ? 5 : 62) + "@" + rates[below(rates.size())];
        for (std::size_t mutations = below(3); mutations > 0; --mutations)
        {
            const std::size_t position = below(text.size());
            const char character = replacements[below(replacements.size())];
            const std::size_t kind = below(6);
            if (kind == 0)
                text.insert(position, 1, character);
            else if (kind == 1)
                text.erase(position, 1);
            else if (kind == 2)
                text.resize(position + 1);
            else
                text[position] = character;
        }
        const std::string expected = OutcomeOf([&] { return ReadByExpression(text); });
        ASSERT_EQ(Outcome(text), expected) << text;

        const bool isValid = expected.find(" #") != std::string::npos && expected.find(": ") == std::string::npos;
        valid += isValid ? 1 : 0;
        TimeCode read(7, false, Rate(7), true);
        ASSERT_EQ(QivTimeCodeParser::TryRead(text, read), isValid) << text;
        ASSERT_EQ(read, isValid ? parser.Parse(text) : TimeCode(7, false, Rate(7), true));
        ASSERT_EQ(parser.TryParse(text), std::pair(isValid, isValid ? read : TimeCode::Empty()));
        if (expected == "out of range: stoi")
            ASSERT_THROW(parser.IsStringFormatValid(text), std::out_of_range) << text;
        else
            ASSERT_EQ(parser.IsStringFormatValid(text), isValid) << text;
    }
    EXPECT_GT(valid, 2000); // the generator makes enough of both
    EXPECT_LT(valid, 20000);
}

TEST(QivTimeCodeParser, AcceptsAndRefusesEveryCharacterAsTheRegularExpressionsDo)
{
    for (const std::string valid : {"2016-03-21T14:05:09;17@30", "14:05:09:17@25"})
        for (std::size_t position = 0; position < valid.size(); ++position)
            for (int character = 0; character < 256; ++character)
            {
                std::string text = valid;
                text[position] = static_cast<char>(character);
                ASSERT_EQ(Outcome(text), OutcomeOf([&] { return ReadByExpression(text); })) << text;
            }
}

struct RefusingParser : QivTimeCodeParser
{
    TimeCode Parse(const std::string&) const override { throw 5; }
};

void CheckTimeCode(const Tests::Case& each)
{
    const auto text = each.Text("text"), error = each.Text("error");
    EXPECT_EQ(Outcome(text), error == "wrong form" ? "invalid argument: QivTimeCodeParser the string '" + text +
                                                         "' has not the expected format."
                             : error.empty() ? each.Text("written") + " #" + each.Text("totalSample")
                                             : error + ": " + each.Text("message"));
}
const bool areRegistered = Tests::RegisterCases("timepoints/TimeCodes.json", CheckTimeCode);

TEST(QivTimeCodeParser, TakesAMillionCharacters)
{
    const QivTimeCodeParser parser;
    const std::string million(1000000, '0'), largeRate = "00:00:00:00@1" + million;
    EXPECT_EQ(Outcome(largeRate), "out of range: stoi");
    EXPECT_EQ(Outcome("00:00:00:00@" + million + "25"), Outcome("00:00:00:00@25"));
    EXPECT_EQ(Outcome(million),
              "invalid argument: QivTimeCodeParser the string '" + million + "' has not the expected format.");
    EXPECT_THROW(parser.IsStringFormatValid(largeRate), std::out_of_range);
    EXPECT_FALSE(parser.TryParse(largeRate).first);
}

TEST(QivTimeCodeParser, ServesTimeCodesAndSubclasses)
{
    const QivTimeCodeParser parser;
    EXPECT_EQ(TimeCode::Parse("10:00:00:00@25", parser).ToString(QivTimeCodeFormatter()), "-1-0-1-0-1T10:00:00:00@25");
    EXPECT_EQ(RefusingParser().TryParse("10:00:00:00@25"), std::pair(false, TimeCode::Empty()));
    EXPECT_EQ(parser.StringToInt(" -12x"), -12);
    EXPECT_THROW(parser.StringToInt("x"), std::invalid_argument);
}

} // namespace
} // namespace Qiv::TimePoints
