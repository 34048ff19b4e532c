#include "Conversions.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>

namespace
{

std::atomic<long> live{0};     // blocks that have not been given back
std::atomic<long> failing{-1}; // allocations until one fails; negative: none does

void* Allocate(std::size_t size)
{
    if (failing >= 0 && failing-- == 0)
        throw std::bad_alloc();
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        throw std::bad_alloc();
    ++live;
    return block;
}

void Release(void* block) noexcept
{
    live -= block != nullptr ? 1 : 0;
    std::free(block);
}

} // namespace

void* operator new(std::size_t size)
{
    return Allocate(size);
}
void* operator new[](std::size_t size)
{
    return Allocate(size);
}
void operator delete(void* block) noexcept
{
    Release(block);
}
void operator delete[](void* block) noexcept
{
    Release(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    Release(block);
}
void operator delete[](void* block, std::size_t) noexcept
{
    Release(block);
}

namespace Qiv::Tests
{
namespace
{

/// Runs `work` with its n-th allocation failing; tells whether one failed.
template <typename Work>
bool FailsAt(long n, const Work& work)
{
    failing = n;
    try
    {
        work();
        failing = -1;
        return false;
    }
    catch (const std::bad_alloc&)
    {
        failing = -1;
        return true;
    }
}

/// Fails each allocation of a reading in turn: nothing leaks, and the target takes the document afterwards.
template <typename Reader, typename Writer, typename Entity, typename Apply>
void FailReading(const std::string& before, const std::string& text, const Apply& apply)
{
    const auto json = Parse(text);
    Entity whole;
    Read<Reader>(before, whole);
    static_cast<void>(apply(json, whole));
    const auto expected = Written<Writer>(whole);
    const auto readOnce = [&](long n)
    {
        Entity entity;
        Read<Reader>(before, entity);
        const bool failed = FailsAt(n, [&] { static_cast<void>(apply(json, entity)); });
        static_cast<void>(Parse(Written<Writer>(entity)));
        static_cast<void>(apply(json, entity));
        EXPECT_EQ(Written<Writer>(entity), expected) << n;
        return failed;
    };
    readOnce(-1); // makes what lives as long as the process
    long n = 0;
    for (bool failed = true; failed; ++n)
    {
        const long liveBefore = live;
        failed = readOnce(n);
        ASSERT_EQ(live, liveBefore) << n;
    }
    EXPECT_GT(n, 3);
}

/// The same for a writing, where the `Stringer` keeps what it had.
template <typename Work>
void FailWriting(const Work& work)
{
    const auto writeOnce = [&](long n)
    {
        Stringer stringer;
        const bool failed = FailsAt(n, [&] { work(stringer); });
        EXPECT_TRUE(failed || Parse(stringer.ToString()).size() > 0);
        return failed;
    };
    writeOnce(-1);
    long n = 0;
    for (bool failed = true; failed; ++n)
    {
        const long liveBefore = live;
        failed = writeOnce(n);
        ASSERT_EQ(live, liveBefore) << n;
    }
    EXPECT_GT(n, 1);
}

template <typename Reader, typename Writer, typename Entity>
void FailBoth(const std::string& before, const std::string& text)
{
    FailReading<Reader, Writer, Entity>(
        before, text, [](const JsonObject& json, Entity& entity) { return Reader().To(json, entity); });
    Entity entity;
    Read<Reader>(text, entity);
    FailWriting([&](Stringer& stringer) { Writer().To(entity, stringer); });
}

TEST(AllocationFailure, LeaksNothingAndLeavesTargetsValid)
{
    const std::string longText(100, 'x');
    FailBoth<JsonToNodeConverter, NodeToJsonConverter, Node>(R"({"id":"n"})", R"({"id":"n2","hostName":")" + longText +
                                                                                  R"(","gbeIpAddresses":[")" +
                                                                                  longText + R"(","b"]})");
    FailBoth<JsonToSequenceOutputConverter, SequenceOutputToJsonConverter, SequenceOutput>(R"({"editMode":false})",
                                                                                           fullSequenceOutput);
    FailBoth<JsonToMetadataProfileDictionaryConverter, MetadataProfileDictionaryToJsonConverter,
             MetadataProfileDictionary>(R"({"a.b":"0","y.y":"y"})", R"({"qiv.peloperator.index":1,"a.b":")" + longText +
                                                                        R"(","c.)" + longText + R"(":"x"})");
    FailReading<JsonToMediaInputConverter, MediaInputToJsonConverter, MediaInput>(
        R"({"id":"old"})", fullInput,
        [](const JsonObject& json, MediaIO& channel) { return JsonToMediaIOConverter().Append(json, channel); });
    MediaInput channel;
    Read<JsonToMediaInputConverter>(fullInput, channel);
    FailWriting(
        [&](Stringer& stringer)
        {
            const auto object = stringer.ObjectScope();
            MediaIOToJsonConverter().AppendMediaIO(channel, stringer);
        });
}

TEST(AllocationFailure, LeavesAStringerAsItWas)
{
    for (long n = 0; n < 200; ++n)
    {
        Stringer json;
        std::string written;
        for (int i = 0; i < 40; ++i)
        {
            const auto before = json.ToString();
            const auto depth = static_cast<std::size_t>(i);
            const bool failed = FailsAt(n % 5 == 0 ? 0 : n, [&] { json.Array(); });
            EXPECT_EQ(json.ToString(), failed ? before : before + "[") << depth;
            if (failed)
                json.Array();
        }
        const std::string text(static_cast<std::size_t>(n) * 20, '\x01');
        const auto before = json.ToString();
        if (FailsAt(n % 2, [&] { json.Value(text); }))
            EXPECT_EQ(json.ToString(), before);
        else
            EXPECT_EQ(json.ToString(), before + Stringer::ToEscapedString(text.c_str()));
    }
}

} // namespace
} // namespace Qiv::Tests
