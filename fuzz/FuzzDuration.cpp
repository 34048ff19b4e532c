#include <FuzzInput.h>

#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/QivDurationParser.h>

#include <locale>
#include <regex>
#include <sstream>
#include <stdexcept>

using namespace Fuzz;
using Qiv::TimePoints::Duration;
using Qiv::TimePoints::QivDurationParser;

namespace
{

constexpr std::size_t longest = 400; // the regular expression recurses once for each character

std::int64_t Expected(const std::string& text)
{
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    std::uint64_t value = 0;
    stream >> value;
    return static_cast<std::int64_t>(value);
}

} // namespace

/// The duration parser against the regular expression and the string stream that define its texts.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::regex form("(\\+|-)?[[:digit:]]+");
    if (size > longest)
        return 0;
    const std::string text(Input(data, size).Rest());
    const bool isValid = std::regex_match(text, form);

    const QivDurationParser parser;
    Check(parser.IsStringFormatValid(text) == isValid, "the parser knows the form", text);
    const auto [succeeds, tried] = parser.TryParse(text);
    Check(succeeds == isValid, "TryParse knows the form", text);
    Duration read(-77);
    Check(QivDurationParser::TryRead(ExactCopy(text).Text(), read) == isValid, "TryRead knows the form", text);

    if (!isValid)
    {
        Check(tried == Duration::Empty() && read == Duration(-77), "a bad text gives nothing", text);
        try
        {
            static_cast<void>(parser.Parse(text));
            Check(false, "Parse refuses a bad text", text);
        }
        catch (const std::invalid_argument& error)
        {
            Check(std::string(error.what()) ==
                      ("QivDurationParser the string '" + text + "' is not an integer.").c_str(),
                  "the failure names the text", text, error.what());
        }
        return 0;
    }

    const auto value = parser.Parse(text);
    Check(value.Nanoseconds() == Expected(text), "the value is that of the stream", text, value.ToString());
    Check(tried == value && read == value, "all operations agree", text);
    Check(value.ToString() == std::to_string(value.Nanoseconds()), "a duration is written as its number", text);
    Check(parser.Parse(value.ToString()) == value, "a written duration reads back", text);
    return 0;
}
