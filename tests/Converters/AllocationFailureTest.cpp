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

} // namespace

// Those for arrays call these.
void* operator new(std::size_t size)
{
    void* const block = failing >= 0 && failing-- == 0 ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        throw std::bad_alloc();
    ++live;
    return block;
}
void operator delete(void* block) noexcept
{
    live -= block != nullptr ? 1 : 0;
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}

namespace Qiv::Tests
{
namespace
{

/// Runs `work` with its n-th allocation failing; tells whether one failed.
template <typename Work>
bool FailsAt(long n, const Work& work)
{
    bool hasFailed = false;
    failing = n;
    try
    {
        work();
    }
    catch (const std::bad_alloc&)
    {
        hasFailed = true;
    }
    failing = -1;
    return hasFailed;
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
template <typename Entity, typename Reader, typename Writer>
void Fail(const std::string& before, const std::string& text)
{
    const auto json = Parse(text);
    auto whole = FromText<Reader, Entity>(before);
    static_cast<void>(Reader().To(json, whole));
    const auto expected = Written<Writer>(whole);
    FailEachAllocation(
        [&](long n)
        {
            auto entity = FromText<Reader, Entity>(before);
            const bool failed = FailsAt(n, [&] { static_cast<void>(Reader().To(json, entity)); });
            static_cast<void>(Parse(Written<Writer>(entity)));
            static_cast<void>(Reader().To(json, entity));
            EXPECT_EQ(Written<Writer>(entity), expected) << n;
            return failed;
        });
    FailEachAllocation(
        [&](long n)
        {
            Stringer stringer;
            return FailsAt(n, [&] { static_cast<void>(Writer().To(whole, stringer)); });
        });
}

/// What channels of both kinds have in common: the converters of a whole channel let no exception out.
struct CommonReader
{
    Result To(const JsonObject& json, MediaIO& channel) const { return JsonToMediaIOConverter().Append(json, channel); }
};
struct CommonWriter
{
    Result To(const MediaIO& channel, Stringer& stringer) const
    {
        const auto object = stringer.ObjectScope();
        return MediaIOToJsonConverter().AppendMediaIO(channel, stringer);
    }
};

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
    Fail<MediaInput, CommonReader, CommonWriter>(R"({"id":"old"})", fullInput);
}

} // namespace
} // namespace Qiv::Tests
