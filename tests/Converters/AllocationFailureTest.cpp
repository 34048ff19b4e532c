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

/// Fails each allocation in turn: attempt(n) tells whether its n-th one failed, and gives back whatever it took.
template <typename Attempt>
void FailEachAllocation(const Attempt& attempt)
{
    attempt(-1); // makes what lives as long as the process
    long n = 0;
    for (bool failed = true; failed; ++n)
    {
        const long before = live;
        failed = attempt(n);
        ASSERT_EQ(live, before) << n;
    }
}

/// Reads and writes with each allocation failing: the target stays valid, and takes the document afterwards.
template <typename Entity, typename Reader, typename Writer, typename ReadInto, typename WriteTo>
void Fail(const std::string& before, const std::string& text, const ReadInto& readInto, const WriteTo& writeTo)
{
    const auto json = Parse(text);
    Entity whole;
    Read<Reader>(before, whole);
    static_cast<void>(readInto(json, whole));
    const auto expected = Written<Writer>(whole);
    FailEachAllocation(
        [&](long n)
        {
            Entity entity;
            Read<Reader>(before, entity);
            const bool failed = FailsAt(n, [&] { static_cast<void>(readInto(json, entity)); });
            static_cast<void>(Parse(Written<Writer>(entity)));
            static_cast<void>(readInto(json, entity));
            EXPECT_EQ(Written<Writer>(entity), expected) << n;
            return failed;
        });
    FailEachAllocation(
        [&](long n)
        {
            Stringer stringer;
            return FailsAt(n, [&] { static_cast<void>(writeTo(whole, stringer)); });
        });
}

template <typename Entity, typename Reader, typename Writer>
void Fail(const std::string& before, const std::string& text)
{
    Fail<Entity, Reader, Writer>(
        before, text, [](const JsonObject& json, Entity& entity) { return Reader().To(json, entity); },
        [](const Entity& entity, Stringer& stringer) { return Writer().To(entity, stringer); });
}

TEST(AllocationFailure, LeaksNothingAndLeavesTargetsValid)
{
    // Long enough for any buffer that needs no allocation.
    const auto longText = "\"" + std::string(5000, 'x') + "\"";
    Fail<Node, JsonToNodeConverter, NodeToJsonConverter>(
        R"({"id":"n"})", R"({"id":"n2","gbeIpAddresses":["a","b"],"hostName":)" + longText + "}");
    Fail<SequenceOutput, JsonToSequenceOutputConverter, SequenceOutputToJsonConverter>(
        R"({"editMode":false})", R"({"sequenceOnAir":{"sequence":{"name":)" + longText + R"(,"id":"s"}},)" +
                                     fullSequenceOutput.substr(fullSequenceOutput.find("\"assetBlock")));
    Fail<MetadataProfileDictionary, JsonToMetadataProfileDictionaryConverter, MetadataProfileDictionaryToJsonConverter>(
        R"({"a.b":"0","y.y":"y"})", R"({"x.long":)" + longText + "," + fullMetadata.substr(1));
    Fail<MediaInput, JsonToMediaInputConverter, MediaInputToJsonConverter>(
        R"({"id":"old"})", fullInput,
        [](const JsonObject& json, MediaIO& channel) { return JsonToMediaIOConverter().Append(json, channel); },
        [](const MediaIO& channel, Stringer& stringer)
        { return MediaIOToJsonConverter().AppendMediaIO(channel, stringer.Object()); });
}

} // namespace
} // namespace Qiv::Tests
