#include "Conversions.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
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
template <typename Entity, typename Reader = ReaderOf<Entity>, typename Writer = WriterOf<Entity>>
void Fail(const std::string& before, const std::string& text, const Reader& reader = Reader(),
          const Writer& writer = Writer())
{
    const auto json = Parse(text);
    Entity whole;
    Read(before, whole, reader);
    static_cast<void>(reader.To(json, whole));
    const auto expected = Written(whole, writer);
    FailEachAllocation(
        [&](long n)
        {
            Entity entity;
            Read(before, entity, reader);
            const bool failed = FailsAt(n, [&] { static_cast<void>(reader.To(json, entity)); });
            static_cast<void>(Parse(Written(entity, writer)));
            static_cast<void>(reader.To(json, entity));
            EXPECT_EQ(Written(entity, writer), expected) << n;
            return failed;
        });
    FailEachAllocation(
        [&](long n)
        {
            Stringer stringer;
            return FailsAt(n, [&] { static_cast<void>(writer.To(whole, stringer)); });
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
    Fail<Node>(R"({"id":"n"})", R"({"id":"n2","gbeIpAddresses":["a","b"],"hostName":)" + longText + "}");
    Fail<SequenceOutput>(R"({"editMode":false})",
                         R"({"sequenceOnAir":{"sequence":{"name":)" + longText + R"(,"id":"s"}},)" +
                             fullSequenceOutput.substr(fullSequenceOutput.find("\"assetBlock")));
    Fail<MetadataProfileDictionary>(R"({"a.b":"0","y.y":"y"})",
                                    R"({"x.long":)" + longText + "," + fullMetadata.substr(1));
    Fail<MediaInput>(R"({"id":"old"})", fullInput, CommonReader(), CommonWriter());
}

} // namespace
} // namespace Qiv::Tests
