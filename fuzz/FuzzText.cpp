#include <FuzzInput.h>
#include <Json.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/TextDocument.h>

#include <json/reader.h>

#include <algorithm>
#include <set>

using namespace Fuzz;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details;

namespace
{

// Limits that inputs of a few kilobytes reach.
TextLimits SmallLimits()
{
    TextLimits limits;
    limits.bytes = 3000;
    limits.depth = 20;
    limits.values = 1200;
    return limits;
}

/// What the limits and the document of an object or an array ask beyond the grammar. Jsoncpp's tree tells it.
struct Demands
{
    std::size_t depth = 0;
    std::size_t values = 0;
};

void Measure(const Json::Value& value, std::size_t depth, Demands& demands)
{
    ++demands.values;
    if (!value.isObject() && !value.isArray())
        return;
    demands.depth = std::max(demands.depth, depth);
    for (const auto& child : value)
        Measure(child, depth + 1, demands);
}

void CheckSame(const Json::Value& value, const Json::Value& expected, std::string_view text)
{
    Check(value.type() == expected.type(), "the types are the same", text);
    Check(value.getOffsetStart() == expected.getOffsetStart() && value.getOffsetLimit() == expected.getOffsetLimit(),
          "the places are the same", text);
    if (!value.isObject() && !value.isArray())
    {
        Check(value == expected, "the values are the same", text);
        return;
    }
    Check(value.size() == expected.size(), "the sizes are the same", text);
    auto other = expected.begin();
    for (auto child = value.begin(); child != value.end(); ++child, ++other)
    {
        Check(child.key() == other.key(), "the keys are the same", text);
        CheckSame(*child, *other, text);
    }
}

/// Surrogates that escapes spell come in pairs; the text has been seen to keep the grammar.
bool HasPairedSurrogates(std::string_view text)
{
    const auto unit = [text](std::size_t offset)
    { return text.substr(offset, 2) == "\\u" ? std::stoul(std::string(text.substr(offset + 2, 4)), nullptr, 16) : 0; };
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] != '\\')
            continue;
        const auto first = unit(i);
        if (first >= 0xDC00 && first <= 0xDFFF)
            return false;
        if (first >= 0xD800 && first <= 0xDBFF)
        {
            const auto second = text.size() - i < 12 ? 0 : unit(i + 6);
            if (second < 0xDC00 || second > 0xDFFF)
                return false;
            i += 6;
        }
        i += 1;
    }
    return true;
}

/// A number whose exponent has many digits, which the document may refuse though it is near zero.
bool HasLongExponent(std::string_view text)
{
    std::size_t digits = 0;
    bool isExponent = false;
    for (const char character : text)
    {
        const bool isDigit = character >= '0' && character <= '9';
        digits = isDigit ? digits + 1 : 0;
        isExponent =
            character == 'e' || character == 'E' || (isExponent && (isDigit || character == '-' || character == '+'));
        if (isExponent && digits > 8)
            return true;
    }
    return false;
}

bool IsPrintable(std::string_view message)
{
    return !message.empty() && WellFormed(message) == message &&
           std::none_of(message.begin(), message.end(),
                        [](char character) { return static_cast<unsigned char>(character) < 0x20; });
}

} // namespace

/// The document of nodes against the grammar of RFC 8259, and against jsoncpp's tree where both take a text.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const ExactCopy copy({reinterpret_cast<const char*>(data), size});
    const auto text = copy.Text();
    const auto limits = SmallLimits();
    TextDocument document;
    const auto failure = document.Parse(text, limits);
    const auto start = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    const bool isJson = IsStrictJson(text) && (text[start] == '{' || text[start] == '[') && HasPairedSurrogates(text);
    if (failure)
        Check(IsPrintable(failure->message) && failure->offset <= text.size(), "a failure is printable and in the text",
              failure->message);
    if (!isJson)
    {
        Check(failure.has_value(), "what is no strict JSON is refused", text);
        return 0;
    }

    // Without a key twice, which jsoncpp compares unescaped; numbers out of range are refused by it, too.
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    Json::Value expected;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    const std::string terminated(text); // jsoncpp looks behind a carriage return
    const bool isTree = reader->parse(terminated.data(), terminated.data() + terminated.size(), &expected, nullptr);
    Demands demands;
    Measure(expected, 1, demands);
    const bool isInLimits =
        text.size() <= limits.bytes && demands.depth <= limits.depth && demands.values <= limits.values;
    if (failure)
    {
        Check(!isTree || !isInLimits || HasLongExponent(text), "strict JSON in the limits is read", failure->message,
              text);
        return 0;
    }
    Check(isTree && isInLimits, "what is read is JSON for jsoncpp and in the limits", text);
    CheckSame(ToTree(document), expected, text);
    return 0;
}
