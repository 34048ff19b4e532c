#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include "CaseFiles.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <typeinfo>

namespace Qiv::TimePoints
{
namespace
{

/// The time code as text with total sample, or the type and text of the exception.
std::string Outcome(const std::string& text)
{
    try
    {
        const auto timeCode = QivTimeCodeParser().Parse(text);
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

TEST(QivTimeCodeParser, TakesInEachPlaceOnlyTheCharactersOfItsForm)
{
    const std::string valid = "2016-03-21T14:05:09;17@30", highest = "9999-19-39T29:59:59;99@99";
    for (std::size_t place = 0; place < valid.size(); ++place)
        for (int character = 0; character < 256; ++character)
        {
            const bool isDigit = highest[place] >= '0' && highest[place] <= '9';
            const bool hasForm = isDigit ? character >= (place == 0 ? '1' : '0') && character <= highest[place]
                                         : character == valid[place] || (valid[place] == ';' && character == ':');
            auto text = valid;
            text[place] = static_cast<char>(character);
            EXPECT_EQ(Outcome(text).rfind("invalid argument: ", 0) == std::string::npos, hasForm) << text;
        }
}

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
