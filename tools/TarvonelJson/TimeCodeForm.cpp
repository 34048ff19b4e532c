#include <TarvonelJson/TimeCodeForm.h>

#include <TarvonelJson/Printable.h>

#include <algorithm>
#include <cstddef>

namespace TarvonelJson
{

namespace
{

// Each digit is the largest that may stand there; the last one may be followed by others.
constexpr std::string_view withDate = "9999-19-39T29:59:59:99@9";
constexpr std::string_view withoutDate = "29:59:59:99@9";
constexpr auto lengthOfDate = withDate.size() - withoutDate.size();

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool Fits(std::string_view form, std::size_t index, char character)
{
    if (index >= form.size())
        return IsDigit(character);
    const auto wanted = form[index];
    if (IsDigit(wanted))
        return IsDigit(character) && character <= wanted &&
               !(form.size() == withDate.size() && index == 0 && character == '0');
    const bool isBeforeFrames = index + 5 == form.size();
    return character == wanted || (isBeforeFrames && character == ';');
}

std::string Expected(std::string_view form, std::size_t index)
{
    if (index >= form.size())
        return "only digits may follow";
    const auto wanted = form[index];
    const bool isBeforeFrames = index + 5 == form.size();
    if (!IsDigit(wanted))
        return std::string("\"") + wanted + (isBeforeFrames ? "\" or \";\" belongs" : "\" belongs");
    if (form.size() == withDate.size() && index == 0)
        return "a digit from 1 to 9 belongs";
    return wanted == '9' ? "a digit belongs" : std::string("a digit of at most ") + wanted + " belongs";
}

} // namespace

std::string WhyNoTimeCode(std::string_view text)
{
    const bool hasDate = text.find_first_of("-T") < lengthOfDate;
    const auto form = hasDate ? withDate : withoutDate;
    std::size_t index = 0;
    while (index < text.size() && Fits(form, index, text[index]))
        ++index;
    std::string why = "is no time code of the form hh:mm:ss:ff@RATE or YYYY-MM-DDThh:mm:ss:ff@RATE (; before ff counts "
                      "drop-frame): ";
    if (index < text.size())
    {
        const auto length = std::min(text.find_first_of("0123456789:;@-T", index), text.size()) - index;
        return why + "after \"" + Shortened(text.substr(0, index)) + "\" stands \"" +
               Shortened(text.substr(index, std::max<std::size_t>(length, 1))) + "\", where " + Expected(form, index);
    }
    if (index < form.size())
        return why + "it ends where " + Expected(form, index);
    return why + "the rate is above 2147483647";
}

} // namespace TarvonelJson
