#include <Qiv/Common/Serialization/Json/InvalidStringerState.h>
#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>

#include "ThrownText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <locale>
#include <map>
#include <random>
#include <sstream>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Qiv::Common::Serialization::Json
{
namespace
{

std::string Quoted(std::string_view text)
{
    return Stringer().Value(text).ToString();
}

/// The JSON string of a text, told slowly from the table of well-formed UTF-8 sequences.
std::string Oracle(std::string_view text)
{
    // First bytes up to each last one, how many bytes they begin, and the lowest and highest second byte.
    static constexpr unsigned rows[][4] = {{0x7F, 1, 0, 0},       {0xC1, 0, 0, 0},       {0xDF, 2, 0x80, 0xBF},
                                           {0xE0, 3, 0xA0, 0xBF}, {0xEC, 3, 0x80, 0xBF}, {0xED, 3, 0x80, 0x9F},
                                           {0xEF, 3, 0x80, 0xBF}, {0xF0, 4, 0x90, 0xBF}, {0xF3, 4, 0x80, 0xBF},
                                           {0xF4, 4, 0x80, 0x8F}, {0xFF, 0, 0, 0}};
    const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    std::string json = "\"";
    for (std::size_t i = 0, next = 0; i < text.size(); i = next)
    {
        const auto& row =
            *std::find_if(std::begin(rows), std::end(rows), [&](auto& each) { return byte(i) <= each[0]; });
        next = i + 1;
        if (row[1] > 1 && byte(next) >= row[2] && byte(next) <= row[3])
            for (++next; next < i + row[1] && byte(next) >= 0x80 && byte(next) <= 0xBF;)
                ++next;
        char escape[8];
        std::snprintf(escape, sizeof escape, "\\u%04x", byte(i));
        if (const auto letter = std::string_view("\"\\\b\f\n\r\t").find(text[i]); letter != std::string_view::npos)
            json += std::string("\\") + "\"\\bfnrt"[letter];
        else if (byte(i) < 0x20)
            json += escape;
        else
            json += next - i == row[1] ? std::string(text.substr(i, row[1])) : "\xEF\xBF\xBD";
    }
    return json + "\"";
}

// The borders of what is escaped and of the ranges of UTF-8.
constexpr unsigned char border[] = {0x00, 0x08, 0x09, 0x0A, 0x0B, 0x0C, 0x0D, 0x1F, 0x20, '"',  '/',  'a',
                                    '\\', 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1, 0xC2, 0xDF,
                                    0xE0, 0xE1, 0xEC, 0xED, 0xEE, 0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xFF};

TEST(Stringer, EscapesEveryTextAsTheTableOfUtf8Says)
{
    EXPECT_EQ(Quoted(std::string_view("\"\\/\b\f\n\r\t\0\x1f\x7f", 11)), R"("\"\\/\b\f\n\r\t\u0000\u001f)"
                                                                         "\x7f\"");
    EXPECT_EQ(Quoted("\xC3\xA9\xF0\x9F\x8E\xA5"), "\"\xC3\xA9\xF0\x9F\x8E\xA5\"");
    EXPECT_EQ(Quoted("\xE2\x82 \xC0\xAF\xED\xA0\x80"), "\"\xEF\xBF\xBD \xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"
                                                       "\xEF\xBF\xBD\"");
    // Exactly sized buffers, so that a sanitizer sees what is read behind them.
    const auto check = [](const std::vector<char>& text) {
        ASSERT_EQ(Quoted({text.data(), text.size()}), Oracle({text.data(), text.size()}));
    };
    for (std::size_t size = 0; size <= 40; ++size)
    {
        std::vector<char> text(size, 'x');
        check(text);
        for (auto& character : text)
        {
            for (const auto byte : border)
            {
                character = static_cast<char>(byte);
                check(text);
            }
            character = 'x';
        }
    }
    std::mt19937 random(1);
    for (int i = 0; i < 40000; ++i)
    {
        std::vector<char> text(random() % 24 + (i % 400 == 0 ? 250 : 0));
        for (auto& character : text)
            character = static_cast<char>(random() % 8 == 0 ? 'x' : border[random() % std::size(border)]);
        check(text);
    }
}

TEST(Stringer, WritesLongTexts)
{
    for (const auto* const piece : {"x", "\x01", "\xFF", "\xC3\xA9", "12345678\"", "\xF0\x9F\x8E\xA5\n"})
    {
        std::string text;
        while (text.size() < 1 << 20)
            text += piece;
        Stringer json;
        json.Object().Key(text).Value(text).CloseObject();
        const auto quoted = Oracle(text);
        EXPECT_TRUE(json.ToString() == "{" + quoted + ":" + quoted + "}") << piece;
        EXPECT_TRUE(Stringer::ToEscapedString(text.c_str()) == quoted) << piece;
    }
}

void WriteSample(Stringer& json)
{
    json.Object().Key("a").Value(true).Key(std::string("b\0", 2)).Array();
    json.Value(INT32_MIN).Value(std::int32_t{0}).Value(false).NullValue().Value(0.5);
    json.Value("c\0d").Object().CloseObject().Array().CloseArray();
    json.Object().Member("", "x").Member("a\xFF", std::string_view("\0", 1)).CloseObject();
    AppendNanosecondsObject(json, "16 bytes and more", INT64_MIN);
    AppendNanosecondsObject(json, "\xFF", 0);
    json.CloseArray().Key("").Object().Key("e").Value(std::string("\0", 1)).CloseObject().Key("f");
    AppendNanosecondsObject(json, "", INT64_MAX);
    json.CloseObject();
}

const char* const compactSample = R"({"a":true,"b\u0000":[-2147483648,0,false,null,0.5,"c",{},[],{"":"x","a)"
                                  "\xEF\xBF\xBD"
                                  R"(":"\u0000"},{"_type":"16 bytes and more","value":"-9223372036854775808"},)"
                                  R"({"_type":")"
                                  "\xEF\xBF\xBD"
                                  R"(","value":"0"}],"":{"e":"\u0000"},)"
                                  R"("f":{"_type":"","value":"9223372036854775807"}})";
const char* const prettySample =
    "{\n  \"a\": true,\n  \"b\\u0000\": [\n    -2147483648,\n    0,\n    false,\n    null,\n    0.5,\n    \"c\",\n"
    "    {},\n    [],\n    {\n      \"\": \"x\",\n      \"a\xEF\xBF\xBD\": \"\\u0000\"\n    },\n"
    "    {\n      \"_type\": \"16 bytes and more\",\n      \"value\": \"-9223372036854775808\"\n    },\n"
    "    {\n      \"_type\": \"\xEF\xBF\xBD\",\n      \"value\": \"0\"\n    }\n  ],\n"
    "  \"\": {\n    \"e\": \"\\u0000\"\n  },\n"
    "  \"f\": {\n    \"_type\": \"\",\n    \"value\": \"9223372036854775807\"\n  }\n}";

TEST(Stringer, WritesCompactAndPretty)
{
    Stringer compact;
    WriteSample(compact);
    EXPECT_EQ(compact.ToString(), compactSample);
    auto pretty = Stringer::PrettyStringer();
    WriteSample(pretty);
    EXPECT_EQ(pretty.ToString(), prettySample);

    // Texts of their own follow each other at the top level.
    EXPECT_EQ(Stringer().Object().CloseObject().Value(1).Array().CloseArray().ToString(), "{}1[]");
    EXPECT_EQ(Stringer().ToString(), "");
}

template <typename T, typename = void>
constexpr bool takes = false;
template <typename T>
constexpr bool takes<T, std::void_t<decltype(std::declval<Stringer&>().Value(std::declval<T>()))>> = true;

TEST(Stringer, TakesWholeNumbersOf32BitsOnly)
{
    static_assert(takes<std::int32_t> && takes<std::int16_t> && takes<bool> && takes<float> && takes<double>);
    static_assert(!takes<long> && !takes<long long> && !takes<std::size_t> && !takes<unsigned>);
    static_assert(!takes<std::int64_t> && !takes<std::uint64_t>);
    EXPECT_EQ(Stringer().Value(std::int16_t{-1}).ToString(), "-1");
}

TEST(Stringer, WritesTheShortestNumberThatReadsBack)
{
    Stringer rows;
    for (const auto number : {0.0, -0.0, 0.1, 1234.5, 1e21, 5e-324, -2.2250738585072014e-308, 1.7976931348623157e308})
        rows.Value(number).Value(" ");
    EXPECT_EQ(rows.ToString(), R"(0" "-0" "0.1" "1234.5" "1e+21" "5e-324" "-2.2250738585072014e-308" ")"
                               R"(1.7976931348623157e+308" ")");
    std::mt19937_64 random(1);
    for (int i = 0; i < 10000; ++i)
    {
        const auto bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (!std::isfinite(number))
            continue;
        ASSERT_EQ(std::strtod(Stringer().Value(number).ToString().c_str(), nullptr), number);
    }
    for (const auto number : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                              std::numeric_limits<double>::quiet_NaN()})
    {
        Stringer json;
        json.Array();
        EXPECT_THROW(json.Value(number), std::invalid_argument);
        EXPECT_EQ(json.Value(1).CloseArray().ToString(), "[1]");
    }
}

TEST(Stringer, WritesOrRefusesEachCallAsTheOpenLevelsDemand)
{
    struct Call
    {
        std::string name, text;
        std::function<void(Stringer&)> run;
    };
    const std::map<char, Call> calls = {{'k', {"Key", "\"k\":", [](Stringer& json) { json.Key("k"); }}},
                                        {'}', {"CloseObject", "}", [](Stringer& json) { json.CloseObject(); }}},
                                        {']', {"CloseArray", "]", [](Stringer& json) { json.CloseArray(); }}},
                                        {'{', {"Object", "{", [](Stringer& json) { json.Object(); }}},
                                        {'[', {"Array", "[", [](Stringer& json) { json.Array(); }}},
                                        {'o',
                                         {"Object", "{\"_type\":\"T\",\"value\":\"-5\"}",
                                          [](Stringer& json) { AppendNanosecondsObject(json, "T", -5); }}},
                                        {'x', {"Value", "\"x\"", [](Stringer& json) { json.Value("x"); }}},
                                        {'t', {"Value", "true", [](Stringer& json) { json.Value(true); }}},
                                        {'1', {"Value", "1", [](Stringer& json) { json.Value(1); }}},
                                        {'.', {"Value", "1.5", [](Stringer& json) { json.Value(1.5); }}},
                                        {'n', {"NullValue", "null", [](Stringer& json) { json.NullValue(); }}}};
    std::mt19937 random(1);
    for (int run = 0; run < 1000; ++run)
    {
        Stringer json;
        std::string levels, expected;
        bool isFirst = true, awaitsValue = false;
        std::vector<std::pair<Stringer, std::string>> originals;
        const int length = run == 0 ? 100000 : 60;
        for (int i = 0; i < length; ++i)
        {
            const std::string_view choices = i < length / 2 ? "k{[k{[oxt1.n}]" : "kk}]x";
            const char kind = choices[random() % choices.size()], level = levels.empty() ? ' ' : levels.back();
            const bool isKey = kind == 'k', isEnd = kind == '}' || kind == ']', isBegin = kind == '{' || kind == '[';
            const std::string refusal =
                level == ' ' && isKey                              ? "no object is open"
                : level == ' ' && isEnd                            ? "nothing is open"
                : level == '[' && (isKey || kind == '}')           ? "the innermost open level is an array"
                : level == '{' && kind == ']'                      ? "the innermost open level is an object"
                : awaitsValue && (isKey || isEnd)                  ? "the last key awaits its value"
                : level == '{' && !awaitsValue && !isKey && !isEnd ? "the open object awaits a key"
                                                                   : "";
            const auto& call = calls.at(kind);
            ASSERT_EQ(ThrownText<InvalidStringerState>([&] { call.run(json); }),
                      refusal.empty() ? "nothing thrown" : "Stringer::" + call.name + ": " + refusal);
            if (!refusal.empty())
                continue;
            expected += (isFirst || isEnd || awaitsValue || level == ' ' ? "" : ",") + call.text;
            isFirst = isBegin;
            awaitsValue = isKey;
            if (isBegin)
                levels += kind;
            else if (isEnd)
                levels.pop_back();
            if (random() % 1000 == 0) // goes on with a copy, of which the original knows nothing
                originals.emplace_back(std::exchange(json, Stringer(json)), expected);
        }
        ASSERT_EQ(json.ToString(), expected);
        for (const auto& [original, text] : originals)
            ASSERT_EQ(original.ToString(), text);
    }
    const char* const null = nullptr;
    Stringer json;
    EXPECT_THROW(json.Object().Key(null), std::invalid_argument);
    EXPECT_THROW(json.Key("k").Value(null), std::invalid_argument);
    EXPECT_THROW(Stringer::ToEscapedString(null), std::invalid_argument);
    EXPECT_EQ(json.Value("v").CloseObject().ToString(), R"({"k":"v"})");
}

TEST(Stringer, SharesItsStreamOnlyWhenAsked)
{
    auto given = std::make_unique<std::stringstream>();
    auto& seen = *given;
    seen << "before ";
    Stringer json(std::move(given));
    json.Array().Value("a");
    EXPECT_EQ(seen.str(), "before [\"a\"");
    EXPECT_EQ(&json.Stream(), &seen);
    EXPECT_EQ(json.ToString(), "before [\"a\"");
    auto taken = json.CloseArray().TakeStream();
    EXPECT_EQ(taken->str(), "before [\"a\"]");
    EXPECT_EQ(json.ToString(), "");
    EXPECT_EQ(json.Object().CloseObject().ToString(), "{}"); // as a new one, also in its levels
    EXPECT_EQ(taken->str(), "before [\"a\"]");

    Stringer own;
    own.Array().Value(1);
    auto& stream = own.Stream();
    EXPECT_EQ(stream.str(), "[1");
    own.Value(2);
    EXPECT_EQ(stream.str(), "[1,2");
    std::string word;
    stream >> word; // to the end, after which it refuses to be read and written
    EXPECT_EQ(Stringer(own).CloseArray().ToString(), "[1,2]");
    EXPECT_EQ(own.CloseArray().ToString(), "[1,2]");
    stream.clear();
    stream << '\n';
    EXPECT_EQ(own.Value(3).ToString(), "[1,2]\n3");
    EXPECT_EQ(Stringer(std::unique_ptr<std::stringstream>()).Value(1).TakeStream()->str(), "1");
}

TEST(Stringer, CopiesDeeplyAndMoves)
{
    for (const bool onAStream : {false, true})
    {
        Stringer original = Stringer::PrettyStringer();
        if (onAStream)
            original.Stream();
        original.Object().Key("k");
        auto copy = original;
        EXPECT_EQ(copy.Value(1).Key("l").Value(2).CloseObject().ToString(), "{\n  \"k\": 1,\n  \"l\": 2\n}");
        EXPECT_EQ(copy.Stream().str(), copy.ToString());
        EXPECT_EQ(original.ToString(), "{\n  \"k\": ");
        copy = original;
        copy = *&copy;
        EXPECT_EQ(copy.Array().CloseArray().ToString(), "{\n  \"k\": []");

        Stringer target;
        target.Array();
        target = std::move(original);
        EXPECT_EQ(target.Value(true).CloseObject().ToString(), "{\n  \"k\": true\n}");
        EXPECT_EQ(original.ToString(), ""); // as a new one of the same layout
        EXPECT_EQ(original.Array().Value(1).CloseArray().ToString(), "[\n  1\n]");
    }
    // A copy goes on where the original would, also inside text that it overwrites.
    Stringer overwriting(std::make_unique<std::stringstream>("old text"));
    overwriting.Value(1);
    Stringer copy(overwriting);
    EXPECT_EQ(copy.Value(2).ToString(), "12d text");
    EXPECT_EQ(overwriting.Value(3).ToString(), "13d text");
}

TEST(Stringer, ClosesWhatAScopeHasOpened)
{
    Stringer json;
    {
        const auto object = json.ObjectScope();
        EXPECT_EQ(&object.GetStringer(), &json);
        const auto array = json.ArrayScope("a");
        static_cast<void>(json.ObjectScope());
        static_cast<void>(json.ArrayScope());
        const auto inner = array.GetStringer().ObjectScope();
        const auto innermost = json.ObjectScope("o");
    }
    EXPECT_EQ(json.ToString(), R"({"a":[{},[],{"o":{}}]})");

    // An exception on its way leaves what can't be closed open, instead of ending the process.
    Stringer broken;
    const auto fail = [&]
    {
        const auto object = broken.ObjectScope();
        const auto array = broken.ArrayScope("a");
        const auto inner = broken.ObjectScope();
        broken.Key("k");
        throw std::runtime_error("on its way");
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_EQ(broken.Value(1).CloseObject().CloseArray().CloseObject().ToString(), R"({"a":[{"k":1}]})");
    EXPECT_THROW(
        {
            const auto array = broken.ArrayScope();
            broken.CloseArray();
        },
        InvalidStringerState);
}

struct Grouping : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
    std::string do_truename() const override { return "wahr"; }
};

TEST(Stringer, IgnoresTheGlobalLocale)
{
    const auto old = std::locale::global(std::locale(std::locale::classic(), new Grouping));
    for (const bool onAStream : {false, true})
    {
        Stringer json(onAStream ? std::make_unique<std::stringstream>() : nullptr);
        json.Array().Value(1234567).Value(1234.5).Value(true).CloseArray();
        EXPECT_EQ(json.ToString(), "[1234567,1234.5,true]");
    }
    std::locale::global(old);
}

} // namespace
} // namespace Qiv::Common::Serialization::Json
