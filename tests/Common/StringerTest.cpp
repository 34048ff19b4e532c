#include <Qiv/Common/Serialization/Json/InvalidStringerState.h>
#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/Common/Serialization/Json/QuotedKey.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>

#include "ThrownText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string_view>
#include <tuple>
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

TEST(Stringer, EscapesTextsAndReplacesIllFormedUtf8)
{
    EXPECT_EQ(Quoted(std::string_view("\"\\/\b\f\n\r\t\0\x1f\x7f", 11)), R"("\"\\/\b\f\n\r\t\u0000\u001f)"
                                                                         "\x7f\"");
    EXPECT_EQ(Quoted("\xE2\x82 \xC0\xAF\xED\xA0\x80"), "\"\xEF\xBF\xBD \xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"
                                                       "\xEF\xBF\xBD\"");
}

TEST(Stringer, KeepsTheSequencesOfTheUtf8TableOnly)
{
    // First byte, lowest and highest second byte, how many bytes they begin; those that begin nothing have an empty
    // range.
    static constexpr unsigned rows[][4] = {
        {0xC0, 1, 0, 2},       {0xC1, 1, 0, 2},       {0xC2, 0x80, 0xBF, 2}, {0xDF, 0x80, 0xBF, 2},
        {0xE0, 0xA0, 0xBF, 3}, {0xE1, 0x80, 0xBF, 3}, {0xEC, 0x80, 0xBF, 3}, {0xED, 0x80, 0x9F, 3},
        {0xEE, 0x80, 0xBF, 3}, {0xEF, 0x80, 0xBF, 3}, {0xF0, 0x90, 0xBF, 4}, {0xF1, 0x80, 0xBF, 4},
        {0xF3, 0x80, 0xBF, 4}, {0xF4, 0x80, 0x8F, 4}, {0xF5, 1, 0, 4},       {0xFF, 1, 0, 4}};
    for (const auto& [first, lowest, highest, size] : rows)
        for (unsigned second = 0; second < 256; ++second)
        {
            const std::string text = {static_cast<char>(first), static_cast<char>(second), '\xBF', '\x80'};
            const auto sequence = text.substr(0, size);
            EXPECT_EQ(Quoted(sequence) == '"' + sequence + '"', second >= lowest && second <= highest)
                << first << ' ' << second;
        }
}

// Texts are handled a block at a time: a piece is written the same wherever it stands in a text of any length.
TEST(Stringer, EscapesTheSameInEveryPlace)
{
    std::vector<std::string> pieces = {"\xC3\xA9", "\xE2\x82\xAC", "\xE2\x82", "\xF0\x9F\x8E\xA5"};
    for (int byte = 0; byte < 256; ++byte)
        pieces.emplace_back(1, static_cast<char>(byte));
    for (const auto& piece : pieces)
    {
        const auto quoted = Quoted(piece);
        for (std::size_t place = 0; place <= 40; ++place)
            for (const unsigned behind : {0U, 1U, 6U, 7U, 8U, 15U, 16U, 300U})
            {
                const std::string before(place, 'x'), after(behind, 'x'), text = before + piece + after;
                const std::vector<char> exact(text.begin(), text.end()); // a sanitizer sees what is read behind it
                ASSERT_EQ(Quoted({exact.data(), exact.size()}),
                          '"' + before + quoted.substr(1, quoted.size() - 2) + after + '"');
            }
    }
}

TEST(Stringer, WritesLongTexts)
{
    for (const std::string_view piece : {"x", "\x01", "\xFF", "\xC3\xA9", "12345678\"", "\xF0\x9F\x8E\xA5\n"})
    {
        const auto quotedPiece = Quoted(piece);
        std::string text, quoted = "\"";
        while (text.size() < 1 << 20)
        {
            text += piece;
            quoted.append(quotedPiece, 1, quotedPiece.size() - 2);
        }
        quoted += '"';
        Stringer json;
        json.Object().Key(text).Value(text).CloseObject();
        EXPECT_TRUE(json.ToString() == "{" + quoted + ":" + quoted + "}") << piece;
        EXPECT_TRUE(Stringer::ToEscapedString(text.c_str()) == quoted) << piece;
    }
}

TEST(Stringer, WritesCompactAndPretty)
{
    auto json = Stringer::PrettyStringer();
    json.Object().Key("a").Array().Value(INT32_MIN).Object().CloseObject().Array().CloseArray().NullValue();
    AppendNanosecondsObject(json, "T", INT64_MIN);
    json.CloseArray().Member("b", "x").CloseObject();
    EXPECT_EQ(json.ToString(),
              "{\n  \"a\": [\n    -2147483648,\n    {},\n    [],\n    null,\n    {\n      \"_type\": \"T\",\n"
              "      \"value\": \"-9223372036854775808\"\n    }\n  ],\n  \"b\": \"x\"\n}");
    // Texts of their own follow each other at the top level.
    EXPECT_EQ(Stringer().Object().CloseObject().Value(1).Array().CloseArray().ToString(), "{}1[]");
    EXPECT_EQ(Stringer().ToString(), "");
}

template <typename T, typename = void>
constexpr bool takes = false;
template <typename T>
constexpr bool takes<T, std::void_t<decltype(std::declval<Stringer&>().Value(std::declval<T>()))>> = true;

TEST(Stringer, TakesWholeNumbersOf32BitsAndTextsOnly)
{
    static_assert(takes<std::int32_t> && takes<std::int16_t> && takes<bool> && takes<float> && takes<double>);
    static_assert(!takes<long> && !takes<long long> && !takes<std::size_t> && !takes<unsigned>);
    static_assert(!takes<std::int64_t> && !takes<std::uint64_t>);
    static_assert(takes<char*> && takes<const char*> && !takes<const unsigned char*> && !takes<int*> && !takes<void*>);
    EXPECT_EQ(Stringer().Value(std::int16_t{-1}).ToString(), "-1");
}

TEST(Stringer, WritesTheShortestNumberThatReadsBack)
{
    Stringer rows;
    for (const auto number : {0.0, -0.0, 0.1, 1234.5, 1e21, 5e-324, -2.2250738585072014e-308, 1.7976931348623157e308})
        rows.Value(number).Value(" ");
    EXPECT_EQ(rows.ToString(), R"(0" "-0" "0.1" "1234.5" "1e+21" "5e-324" "-2.2250738585072014e-308" ")"
                               R"(1.7976931348623157e+308" ")");
    for (const auto number : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                              std::numeric_limits<double>::quiet_NaN()})
    {
        Stringer json;
        json.Array();
        EXPECT_THROW(json.Value(number), std::invalid_argument);
        EXPECT_EQ(json.Value(1).CloseArray().ToString(), "[1]");
    }
}

TEST(Stringer, WritesAQuotedKeyAsItWritesTheSameText)
{
    const std::string plain = " !#$%&'()*+,-./09:;<=>?@AZ[]^_`az{|}~";
    for (std::size_t size = 0; size <= 28; ++size)
        for (const bool isPretty : {false, true})
        {
            const auto name = plain.substr(plain.size() - size);
            const QuotedKey key(name);
            auto json = isPretty ? Stringer::PrettyStringer() : Stringer();
            auto expected = json;
            for (int i = 0; i < 60; ++i) // grows in every phase
            {
                json.Object().Member(key, "v").Key(key);
                expected.Object().Member(name, "v").Key(name);
            }
            EXPECT_EQ(json.Value(1).ToString(), expected.Value(1).ToString()) << name;
            EXPECT_EQ(key.Text(), name);
        }
    for (const std::string_view refused :
         {"a\"b", "a\\b", "a\x1f", "a\x7f", "\xC3\xA9", "longer than 28 characters are"})
        EXPECT_THROW(QuotedKey{refused}, std::invalid_argument) << refused;
}

TEST(Stringer, TellsWhyItRefusesACall)
{
    using Calls = std::function<void(Stringer&)>;
    const Calls nothing = [](Stringer&) {}, array = [](Stringer&json) { json.Array(); },
                object = [](Stringer&json) { json.Object(); }, key = [](Stringer&json) { json.Key("k"); },
                objectEnd = [](Stringer&json) { json.CloseObject(); },
                arrayEnd = [](Stringer&json) { json.CloseArray(); },
                keyInObject = [](Stringer&json) { json.Object().Key("k"); };
    const std::tuple<Calls, Calls, std::string> rows[] = {
        {nothing, key, "Key: no object is open"},
        {nothing, objectEnd, "CloseObject: nothing is open"},
        {nothing, arrayEnd, "CloseArray: nothing is open"},
        {array, key, "Key: the innermost open level is an array"},
        {array, objectEnd, "CloseObject: the innermost open level is an array"},
        {object, arrayEnd, "CloseArray: the innermost open level is an object"},
        {keyInObject, arrayEnd, "CloseArray: the innermost open level is an object"},
        {keyInObject, key, "Key: the last key awaits its value"},
        {keyInObject, objectEnd, "CloseObject: the last key awaits its value"},
        {object, object, "Object: the open object awaits a key"},
        {object, array, "Array: the open object awaits a key"},
        {object, [](Stringer& json) { AppendNanosecondsObject(json, "T", 5); }, "Object: the open object awaits a key"},
        {object, [](Stringer& json) { json.Value("x"); }, "Value: the open object awaits a key"},
        {object, [](Stringer& json) { json.Value(1.5); }, "Value: the open object awaits a key"},
        {object, [](Stringer& json) { json.NullValue(); }, "NullValue: the open object awaits a key"}};
    for (const auto& [open, refused, message] : rows)
    {
        Stringer json;
        open(json);
        const auto text = json.ToString();
        EXPECT_EQ(ThrownText<InvalidStringerState>([&, &call = refused] { call(json); }), "Stringer::" + message);
        EXPECT_EQ(json.ToString(), text) << message;
    }
    const char* const null = nullptr;
    Stringer json;
    EXPECT_THROW(json.Object().Key(null), std::invalid_argument);
    EXPECT_THROW(json.Key("k").Value(null), std::invalid_argument);
    EXPECT_THROW(Stringer::ToEscapedString(null), std::invalid_argument);
    EXPECT_EQ(json.Value("v").CloseObject().ToString(), R"({"k":"v"})");
}

TEST(Stringer, RemembersEveryOpenLevel)
{
    std::mt19937 random(1);
    Stringer json;
    std::string expected, ends;
    for (int i = 0; i < 100000; ++i)
    {
        const bool isObject = random() % 2 == 0;
        isObject ? json.Object().Key("k") : json.Array();
        expected += isObject ? R"({"k":)" : "[";
        ends += isObject ? '}' : ']';
    }
    std::reverse(ends.begin(), ends.end());
    Stringer copy(json.Value(1));
    for (auto* const writer : {&json, &copy})
    {
        for (const auto end : ends)
        {
            ASSERT_THROW(end == '}' ? writer->CloseArray() : writer->CloseObject(), InvalidStringerState);
            end == '}' ? writer->CloseObject() : writer->CloseArray();
        }
        EXPECT_TRUE(writer->ToString() == expected + '1' + ends);
    }
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
    own.Value(2);
    std::string word;
    stream >> word; // to the end, after which it refuses to be read and written
    EXPECT_EQ(Stringer(own).CloseArray().ToString(), "[1,2]");
    EXPECT_EQ(own.CloseArray().ToString(), "[1,2]");
    stream.clear();
    stream << '\n';
    EXPECT_EQ(own.Value(3).ToString(), "[1,2]\n3");
    EXPECT_EQ(Stringer(std::unique_ptr<std::stringstream>()).Value(1).TakeStream()->str(), "1");
}

TEST(Stringer, CopiesGoOnWhereTheOriginalWould)
{
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
