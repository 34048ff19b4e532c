#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/TextFailure.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Quote.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Utf8.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextPosition.h>

#include <algorithm>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using Common::Serialization::Json::Details::NodeType;

namespace
{

using namespace std::string_view_literals;

constexpr auto blanks = " \t\r\n"sv;
constexpr auto numberCharacters = "+-.0123456789eE"sv;

bool IsDigit(char character) noexcept
{
    return character >= '0' && character <= '9';
}

bool IsOneOf(std::string_view characters, char character) noexcept
{
    return characters.find(character) != std::string_view::npos;
}

bool StartsWith(std::string_view text, std::string_view beginning) noexcept
{
    return text.substr(0, beginning.size()) == beginning;
}

// Letters, digits and what else numbers and names are made of.
std::size_t EndOfWord(std::string_view text, std::size_t offset) noexcept
{
    const auto belongs = [](char character)
    {
        const auto letter = static_cast<char>(static_cast<unsigned char>(character) | 0x20U);
        return (letter >= 'a' && letter <= 'z') || IsOneOf("+-._0123456789", character);
    };
    while (offset < text.size() && belongs(text[offset]))
        ++offset;
    return offset;
}

std::string_view WordAt(std::string_view text, std::size_t offset) noexcept
{
    return text.substr(offset, EndOfWord(text, offset) - offset);
}

// What is wrong with a word in place of a number, by the grammar of JSON's numbers.
const char* FaultOfNumber(std::string_view word) noexcept
{
    if (StartsWith(word, "+"))
        return "a plus sign may not stand before it";
    if (StartsWith(word, "-"))
        word.remove_prefix(1);
    const auto skipDigits = [&word]
    {
        const auto count = std::min(word.find_first_not_of("0123456789"), word.size());
        word.remove_prefix(count);
        return count != 0;
    };
    if (word.size() > 1 && word[0] == '0' && IsDigit(word[1]))
        return "it begins with a zero";
    if (!skipDigits())
        return StartsWith(word, ".") ? "a digit is missing before the point" : "a digit is missing behind the sign";
    if (StartsWith(word, "."))
    {
        word.remove_prefix(1);
        if (!skipDigits())
            return "a digit is missing behind the point";
    }
    if (StartsWith(word, "e") || StartsWith(word, "E"))
    {
        word.remove_prefix(1);
        word.remove_prefix(!word.empty() && IsOneOf("+-", word[0]) ? 1 : 0);
        if (!skipDigits())
            return "its exponent has no digit";
    }
    return word.empty() ? nullptr : "something else follows it directly";
}

struct ForeignWord
{
    std::string_view word;
    std::string_view instead; // of JSON, when there is a word
};

constexpr ForeignWord foreignWords[] = {{"True", "true"},  {"TRUE", "true"}, {"False", "false"}, {"FALSE", "false"},
                                        {"None", "null"},  {"Null", "null"}, {"NULL", "null"},   {"nil", "null"},
                                        {"undefined", ""}, {"NaN", ""},      {"nan", ""},        {"NAN", ""},
                                        {"Infinity", ""},  {"inf", ""},      {"Inf", ""},        {"-Infinity", ""},
                                        {"+Infinity", ""}, {"-NaN", ""},     {"-inf", ""},       {"-Inf", ""}};

TextFailure FailureOfWord(std::string_view text, std::size_t offset)
{
    const auto word = WordAt(text, offset);
    for (const auto& foreign : foreignWords)
        if (word == foreign.word)
            return {std::string(word) + " is no value of JSON" +
                        (foreign.instead.empty() ? "" : "; it says " + std::string(foreign.instead)),
                    offset};
    if (!IsOneOf(numberCharacters, word[0]) || word[0] == 'e' || word[0] == 'E')
        return {Quote(word) + " is no value of JSON; a text stands in double quotes", offset};
    const auto* const fault = FaultOfNumber(word);
    if (fault == nullptr) // a number that the parser refuses
        return {Quote(word) + " has too large an exponent", offset};
    return {Quote(word) + " is no JSON number: " + fault, offset};
}

// The first fault behind the opening quote of a text that has one, or that does not end.
TextFailure FailureOfString(std::string_view text, std::size_t begin)
{
    const auto hexadecimal = [text](std::size_t offset, unsigned& value)
    {
        value = 0;
        for (const char character : text.substr(offset, 4))
        {
            const auto digit = "0123456789abcdef0123456789ABCDEF"sv.find(character);
            if (digit == std::string_view::npos)
                return false;
            value = value * 16 + static_cast<unsigned>(digit % 16);
        }
        return offset + 4 <= text.size();
    };
    for (auto i = begin + 1; i < text.size();)
    {
        const auto character = text[i];
        if (static_cast<unsigned char>(character) < 0x20)
            return {"a control character may not stand in a string", i};
        if (character != '\\')
        {
            const auto size = FirstCharacter(text.substr(i)).size;
            if (size == 0)
                return {"the text is no well-formed UTF-8 here", i};
            i += size;
            continue;
        }
        const auto rest = text.substr(i);
        if (rest.size() < 2)
            break;
        if (IsOneOf("\"\\/bfnrt", rest[1]))
        {
            i += 2;
            continue;
        }
        if (rest[1] != 'u')
        {
            const auto size = std::max<std::size_t>(FirstCharacter(rest.substr(1)).size, 1);
            return {Quote(rest.substr(1, size)) + " may not stand behind a backslash", i};
        }
        unsigned first = 0, second = 0;
        if (!hexadecimal(i + 2, first))
        {
            if (rest.find_first_not_of("0123456789abcdefABCDEF", 2) == std::string_view::npos && rest.size() < 6)
                break;
            return {"\\u wants four hexadecimal digits", i};
        }
        i += 6;
        if (first < 0xD800 || first > 0xDFFF)
            continue;
        if (first > 0xDBFF || !StartsWith(text.substr(i), "\\u") || !hexadecimal(i + 2, second) || second < 0xDC00 ||
            second > 0xDFFF)
        {
            if (first <= 0xDBFF && text.substr(i).size() < 6 && !IsOneOf(text.substr(i), '"'))
                break;
            return {std::string(rest.substr(0, 6)) + " is half of a surrogate pair, without the other half", i - 6};
        }
        i += 6;
    }
    return {"the text ends inside the string that began at " + PlaceOf(text, begin), text.size()};
}

bool BeginsComment(std::string_view text, std::size_t offset) noexcept
{
    return StartsWith(text.substr(offset), "//") || StartsWith(text.substr(offset), "/*") || text[offset] == '#';
}

// Single quotes, those of typesetters, and the grave accent.
bool BeginsOtherQuotes(std::string_view text, std::size_t offset) noexcept
{
    for (const auto quote : {"'"sv, "`"sv, "\xE2\x80\x98"sv, "\xE2\x80\x99"sv, "\xE2\x80\x9C"sv, "\xE2\x80\x9D"sv,
                             "\xE2\x80\x9E"sv, "\xC2\xAB"sv})
        if (StartsWith(text.substr(offset), quote))
            return true;
    return false;
}

// A character that may not stand outside of strings at all; nothing for others.
std::optional<TextFailure> FailureOfCharacter(std::string_view text, std::size_t offset)
{
    if (BeginsComment(text, offset))
        return TextFailure{"a comment may not stand in JSON", offset};
    if (text[offset] == '\'')
        return TextFailure{"a text stands in double quotes, not in single ones", offset};
    if (BeginsOtherQuotes(text, offset))
        return TextFailure{"a text stands in double quotes like \"this\", not in other ones", offset};
    const auto character = FirstCharacter(text.substr(offset));
    if (character.size == 0)
        return TextFailure{"the text is no well-formed UTF-8 here", offset};
    if (character.value < 0x20 || character.value >= 0x7F)
        return TextFailure{Quote(text.substr(offset, character.size)) + " may stand in strings only", offset};
    return std::nullopt;
}

TextFailure FailureBehindDocument(std::string_view text, std::size_t offset)
{
    const auto next = text[offset];
    if (next == '\0')
        return {"a NUL byte stands behind the document", offset};
    if (BeginsComment(text, offset))
        return {"a comment may not stand in JSON", offset};
    if (IsOneOf("{[\"", next) || !WordAt(text, offset).empty())
        return {"a second document stands behind the first", offset};
    return {"nothing but white space may stand behind the document", offset};
}

std::string_view NameOf(NodeType container) noexcept
{
    return container == NodeType::Object ? "object" : "array";
}

class Context
{
public:
    explicit Context(const TextStop& stop) : stop_(stop), text_(stop.text) {}

    TextFailure Failure() const
    {
        // Behind the last token stand separators, and then at most the beginning of a token with a fault inside.
        const auto token = std::min(text_.find_first_not_of(" \t\r\n,:]}", stop_.lastTokenEnd), stop_.offset);
        if (token < stop_.offset)
            return text_[token] == '"' ? FailureOfString(text_, token) : FailureOfWordAt(token);
        if (token == text_.size())
            return EndOfText();
        if (token == stop_.lastTokenEnd && stop_.lastLeaf != nullptr && !WordAt(text_, token).empty())
            return FailureOfWordAt(stop_.lastLeaf->offset); // 01, 1.5.2, truex
        const auto next = text_[token];
        if (auto failure = FailureOfCharacter(text_, token))
            return *failure;

        const auto before = text_.find_last_not_of(blanks, token - 1);
        const bool isBehindToken = before < stop_.lastTokenEnd;
        const auto last = isBehindToken && !IsOpening(before) ? 'v' : text_[before]; // 'v' for the end of a value
        const bool isObject = Container() == NodeType::Object;
        if (last == 'v' && stop_.isBehindKey && isBehindToken)
            return {"a colon is missing behind the key", token};
        if (last == 'v' || last == ']' || last == '}')
            return MissingComma(token, next);
        if (last == ',' && IsClosing(next))
            return {"a comma may not stand behind the last " + std::string(isObject ? "member" : "element"), before};
        if (IsClosing(next) && last != ':')
            return Mismatch(token);
        if (isObject && last != ':')
            return {next == ',' ? "a member is missing before the comma" : "a key in double quotes is missing", token};
        if (next == ',' || next == ':' || IsClosing(next))
            return {last == ':' ? "a value is missing behind the colon" : "a value is missing", token};
        if (!WordAt(text_, token).empty())
            return FailureOfWord(text_, token);
        return {Quote(text_.substr(token, 1)) + " begins no value", token};
    }

private:
    NodeType Container() const noexcept { return stop_.container->type; }

    static bool IsClosing(char character) noexcept { return character == ']' || character == '}'; }

    // Whether the last token is the bracket that opened the container.
    bool IsOpening(std::size_t offset) const noexcept { return offset == stop_.container->offset; }

    std::string ContainerFrom() const
    {
        return std::string(NameOf(Container())) + " that began at " + PlaceOf(text_, stop_.container->offset);
    }

    TextFailure EndOfText() const { return {"the text ends inside the " + ContainerFrom(), text_.size()}; }

    // A word with which the text ends may be the beginning of a good one.
    TextFailure FailureOfWordAt(std::size_t offset) const
    {
        const auto word = WordAt(text_, offset);
        const bool isLast = offset + word.size() == text_.size();
        for (const auto whole : {"true"sv, "false"sv, "null"sv})
            if (isLast && StartsWith(whole, word))
                return EndOfText();
        const auto more = std::string(word) + "0";
        if (isLast && FaultOfNumber(more) == nullptr && FaultOfNumber(word) != nullptr)
            return EndOfText();
        return FailureOfWord(text_, offset);
    }

    TextFailure MissingComma(std::size_t offset, char next) const
    {
        const bool isObject = Container() == NodeType::Object;
        if (IsClosing(next))
            return Mismatch(offset);
        if (next == ':' && !isObject)
            return {"a colon may stand behind keys only, and an array has none", offset};
        return {isObject ? "a comma or } is missing" : "a comma or ] is missing", offset};
    }

    TextFailure Mismatch(std::size_t offset) const
    {
        return {std::string(1, text_[offset]) + " does not close the " + ContainerFrom(), offset};
    }

    const TextStop& stop_;
    const std::string_view text_;
};

} // namespace

std::string PlaceOf(std::string_view text, std::size_t offset)
{
    const auto position = PositionOf(text, static_cast<std::ptrdiff_t>(offset));
    return std::to_string(position.line) + ":" + std::to_string(position.column);
}

std::optional<TextFailure> FailureOfBeginning(std::string_view text)
{
    const auto start = text.find_first_not_of(blanks);
    if (start == std::string_view::npos)
        return TextFailure{"the text is empty", text.size()};
    if ((text[start] == '{' || text[start] == '[') && !StartsWith(text.substr(start + 1), "\0"sv))
        return std::nullopt;

    if (StartsWith(text, "\xEF\xBB\xBF"))
        return TextFailure{"a byte order mark may not stand before JSON", 0};
    // A byte order mark, or a bracket and what follows it in units of four or two bytes.
    const auto isNul = [text](std::size_t offset) { return text.substr(offset, 1) == "\0"sv; };
    if (StartsWith(text, "\xFF\xFE\0\0"sv) || StartsWith(text, "\0\0\xFE\xFF"sv) ||
        (isNul(0) && isNul(1) && isNul(2) && text.size() > 3) || (!isNul(0) && isNul(1) && isNul(2) && isNul(3)))
        return TextFailure{"the text is UTF-32; JSON is UTF-8", 0};
    if (StartsWith(text, "\xFF\xFE") || StartsWith(text, "\xFE\xFF") || isNul(0) != isNul(1))
        return TextFailure{"the text is UTF-16; JSON is UTF-8", 0};
    if (StartsWith(text, "\x1F\x8B"))
        return TextFailure{"the text is compressed by gzip", 0};
    if (text[start] == '<')
        return TextFailure{"the text is XML or HTML", start};
    if (BeginsComment(text, start))
        return TextFailure{"a comment may not stand in JSON", start};
    if (text[start] == '{' || text[start] == '[')
        return std::nullopt;
    return TextFailure{"a document is an object or an array", start};
}

TextFailure FailureOf(const TextStop& stop)
{
    if (stop.container == nullptr)
        return FailureBehindDocument(stop.text, stop.offset);
    return Context(stop).Failure();
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
