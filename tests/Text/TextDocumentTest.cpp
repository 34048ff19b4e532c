#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/TextDocument.h>

#include <CaseFiles.h>

#include <Qiv/Common/Serialization/Json/Details/NumberText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Quote.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <random>

namespace
{

// Bytes that the program holds and has held at most, each block with its size before it.
std::size_t held = 0, mostHeld = 0;
constexpr std::size_t header = alignof(std::max_align_t);

} // namespace

void* operator new(std::size_t size)
{
    auto* const block = static_cast<char*>(std::malloc(size + header));
    if (block == nullptr)
        throw std::bad_alloc();
    *reinterpret_cast<std::size_t*>(block) = size;
    mostHeld = std::max(mostHeld, held += size);
    return block + header;
}

// Not inlined: g++ takes the size before the block for a mistake.
[[gnu::noinline]] void operator delete(void* block) noexcept
{
    if (block == nullptr)
        return;
    auto* const start = static_cast<char*>(block) - header;
    held -= *reinterpret_cast<std::size_t*>(start);
    std::free(start);
}

void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}

// Those of the address sanitizer do not call the ones above. Not inlined: valgrind puts its own in their place.
[[gnu::noinline]] void* operator new[](std::size_t size)
{
    return operator new(size);
}

[[gnu::noinline]] void operator delete[](void* block) noexcept
{
    operator delete(block);
}

[[gnu::noinline]] void operator delete[](void* block, std::size_t) noexcept
{
    operator delete(block);
}

namespace Qiv::Tests
{

using namespace Common::Serialization::Json::Details;
using namespace DataModel::Tarvonel::Serialization::Json;
using namespace DataModel::Tarvonel::Serialization::Json::Details;

namespace
{

// With each %XX as a byte.
std::string Bytes(const std::string& text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const auto digits = text.substr(i + 1, 2);
        const bool isByte = text[i] == '%' && digits.find_first_not_of("0123456789ABCDEF") == std::string::npos;
        bytes += isByte ? static_cast<char>(std::stoi(digits, nullptr, 16)) : text[i];
        i += isByte ? 2 : 0;
    }
    return bytes;
}

std::string Parsed(const std::string& text, const TextLimits& limits = {})
{
    const auto document = std::make_unique<TextDocument>();
    const std::unique_ptr<char[]> exact(new char[text.size()]); // no byte behind it
    std::copy(text.begin(), text.end(), exact.get());
    const auto failure = document->Parse({exact.get(), text.size()}, limits);
    if (!failure)
        return "read";
    return PlaceOf(text, failure->offset) + " " + failure->message;
}

} // namespace

TEST(TextDocument, TellsWhatIsWrongAndWhere)
{
    // Pairs of a text, with each %XX as a byte, and what is wrong; END is the place behind the text.
    for (const auto& pair : Parse(FileText("Text/malformed.json")))
    {
        const auto text = Bytes(pair[0].asString());
        auto expected = Bytes(pair[1].asString());
        if (expected.rfind("END ", 0) == 0)
            expected.replace(0, 3, PlaceOf(text, text.size()));
        EXPECT_EQ(Parsed(text), expected) << text;
    }
}

TEST(TextDocument, IsTheTreeThatJsoncppReads)
{
    const std::string texts =
        R"( {"a" : null , "b":[ null ,true, {} ,[ ] ,"x\n\ud834\udd1e\u0000" ,false], "\u0063\\\"" :"" , "":{"d":1}} ,)"
        "[-0,0,-0.0,9223372036854775807,9223372036854775808,18446744073709551615,18446744073709551616,0.10,1E5,1e-400,"
        "-9223372036854775808,-9223372036854775809,123456789.123456789e-7,1.7976931348623157e308,5e-324,0e99, 0.00]";
    std::string all = "[" + texts;
    for (int i = 0; i < 200; ++i) // beyond the document's own memory
        all += ",\n" + texts;
    all += ']';
    TextDocument document;
    ASSERT_FALSE(document.Parse(all, {}));
    EXPECT_TRUE(ToTree(document) == Parse(all));
}

TEST(TextDocument, HoldsItsLimits)
{
    const auto deep = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_EQ(Parsed(deep(100)), "read");
    EXPECT_EQ(Parsed("{\"[\":" + deep(100) + "}"),
              "1:105 objects and arrays are nested more than 100 levels deep, the limit set for them");
    TextLimits limits;
    limits.depth = 5000;
    EXPECT_EQ(Parsed(deep(1000), limits), "read");
    EXPECT_EQ(Parsed(deep(1001), limits),
              "1:1001 objects and arrays are nested more than 1000 levels deep, the limit set for them");
    limits.values = 4;
    EXPECT_EQ(Parsed(R"({"a":[1,2],"b":{},"c":3})", limits),
              "1:16 the text has more than 4 values, the limit set for it");
    EXPECT_EQ(Parsed(R"({"a":[1,2]})", limits), "read");
    std::string objects = "[";
    for (int i = 0; i < 1000; ++i)
        objects += "{\"a\":0},";
    objects.back() = ']';
    limits.values = 2001;
    EXPECT_EQ(Parsed(objects, limits), "read");
    limits.values = 2000;
    EXPECT_EQ(Parsed(objects, limits), "1:7999 the text has more than 2000 values, the limit set for it");
    limits.bytes = 10;
    EXPECT_EQ(Parsed("[1,2,3,45]", limits), "read");
    EXPECT_EQ(Parsed("[1,2,3,456]", limits), "1:11 the text has more than 10 bytes, the limit set for it");
}

TEST(TextDocument, FindsAKeyTwiceAmongMany)
{
    const auto object = [](const std::vector<std::string>& keys)
    {
        std::string text = "{";
        for (const auto& key : keys)
            text += "\"" + key + "\":{\"a\":[]},";
        text.back() = '}';
        return text;
    };
    std::mt19937 random(7);
    for (const std::size_t size : {3U, 20U, 64U, 65U, 5000U})
        for (const bool collide : {false, true})
        {
            std::vector<std::string> keys;
            for (std::uint64_t i = 0; keys.size() < size; ++i)
                if (auto key = std::to_string(i * 7919); !collide || std::hash<std::string>()(key) % 8192 < 64)
                    keys.push_back(std::move(key));
            EXPECT_EQ(Parsed(object(keys)), "read") << size;
            const auto first = random() % (size - 1);
            keys[first + 1 + random() % (size - 1 - first)] = keys[first];
            EXPECT_NE(Parsed(object(keys)).find("the key \"" + keys[first] + "\" stands twice"), std::string::npos);
        }
}

TEST(TextDocument, TakesAtMostTenTimesTheMemoryOfTheText)
{
    const auto repeated = [](const char* begin, const char* item, const char* end, std::size_t size = 300'000)
    {
        std::string text = begin;
        while (text.size() < size)
            text += item;
        return text + end;
    };
    std::string keys = repeated("[", "0,", "{");
    for (int i = 0; i < 150'000; ++i)
        keys += "\"" + std::to_string(i) + "\":0,";
    keys.back() = '}';
    const auto dense = repeated("[", "0,", "0]");
    for (const auto& text :
         {dense, repeated("[", "{},", "0]"), repeated("[", "{\"a\":0},", "0]"), repeated("[", "\"\",", "0]"),
          repeated("[", "\"\\n\",", "0]"), repeated("[\"", "\\n", "\"]"), repeated("[\"", "x", "\\n\"]"),
          repeated("[\"", " ", "\"") + "," + dense + "]", repeated("", " ", "") + dense, keys + "]",
          repeated("[", "0,", "\"") + repeated("", "\\n", "\"]"), dense.substr(0, dense.size() - 1),
          repeated("[", "0,", "") + std::string(99, '['), repeated("[", "0,", "0]", 20'000), dense + dense})
    {
        const auto document = std::make_unique<TextDocument>();
        const auto before = mostHeld = held;
        static_cast<void>(document->Parse(text, {}));
        EXPECT_LE(mostHeld - before, 10 * text.size()) << text.substr(0, 20) << "..." << text.size();
    }
    TextDocument small; // which takes none
    const auto before = mostHeld = held;
    EXPECT_FALSE(small.Parse(R"({"_type":"Node","id":"\u0061","values":[1,2.5,null]})", {}));
    EXPECT_EQ(mostHeld, before);
}

TEST(RealOf, IsTheNearestDoubleInEveryRoundingMode)
{
    std::mt19937_64 random(3);
    for (int i = 0; i < 20'000; ++i)
    {
        const auto number = random();
        auto spelling =
            std::to_string(number >> (number % 60)) + "e" + std::to_string(static_cast<int>(number % 60) - 30);
        if (i == 0) // rounded twice where registers have more bits
            spelling = "725206307949e18";
        else if (i % 2 == 0)
            spelling = "-" + std::to_string(number % 100'000) + "." + spelling;
        const auto expected = std::strtod(spelling.c_str(), nullptr);
        for (const int mode : {FE_TONEAREST, FE_UPWARD, FE_TOWARDZERO, FE_DOWNWARD})
        {
            std::fesetround(mode);
            const auto value = RealOf(spelling);
            EXPECT_EQ(std::fegetround(), mode);
            std::fesetround(FE_TONEAREST);
            ASSERT_EQ(value, expected) << spelling << " in mode " << mode;
        }
    }
    for (const std::string spelling : {"1e-400", "0.0001e-320", "1e-99999999999999999999", "0.0e999"})
    {
        EXPECT_EQ(RealOf(spelling), 0) << spelling;
        EXPECT_TRUE(std::signbit(RealOf("-" + spelling)));
    }
    for (const std::string spelling : {"1e400", "10000e305", "1e99999999999999999999", "0.001E+312"})
        EXPECT_TRUE(std::isinf(RealOf(spelling)) && RealOf("-" + spelling) < 0) << spelling;
}

TEST(Quote, IsOneShortPrintableLine)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(Quote("a\"\\\n\t\0\x7F\xC2\x85\xE2\x80\xAE\xE2\x80\xA8\xF3\xA0\x81\x81\xC3\xA4\xF0\x9D\x84\x9E"sv),
              "\"a\\\"\\\\\\n\\t\\u0000\\u007f\\u0085\\u202e\\u2028\\udb40\\udc41\xC3\xA4\xF0\x9D\x84\x9E\"");
    EXPECT_EQ(Quote("\xFF\xC3(\xE2\x80"), "\"\\xff\\xc3(\\xe2\\x80\"");
    EXPECT_EQ(Quote(std::string(78, 'x')), '"' + std::string(78, 'x') + '"');
    EXPECT_EQ(Quote(std::string(79, 'x')), '"' + std::string(75, 'x') + "\"...");
    EXPECT_EQ(Quote(std::string(74, 'x') + "\x01yyyy"), '"' + std::string(74, 'x') + "\"...");
    EXPECT_EQ(Quote(std::string(1'000, '\xFF')).size(), 77U);
}

} // namespace Qiv::Tests
