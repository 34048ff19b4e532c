#include "ModelGenerator.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace Qiv::Tests
{
namespace
{

/// A document as writers write it comes back as it is.
template <typename Entity, typename Reader = ReaderOf<Entity>, typename Writer = WriterOf<Entity>>
void ExpectRoundTrip(const std::string& text, const Reader& reader = Reader(), const Writer& writer = Writer())
{
    Entity entity{}, again{};
    Read(text, entity, reader);
    Read(text, again, reader);
    EXPECT_EQ(Written(entity, writer), text);
    if constexpr (std::is_same_v<Entity, std::unique_ptr<Boundary>>)
        EXPECT_EQ(*again, *entity) << text;
    else
        EXPECT_EQ(again, entity) << text;
}

TEST(Converters, KeepEveryDocumentOfTheModel)
{
    ModelGenerator generator(1);
    for (int i = 0; i < 1500 && !HasFailure(); ++i)
    {
        const auto input = generator.Document("MediaInput"), output = generator.Document("MediaOutput");
        ExpectRoundTrip<MediaInput>(input);
        ExpectRoundTrip<MediaInput>(input, JsonToMediaInputConverter(), MediaInputToJsonConverter());
        ExpectRoundTrip<MediaOutput>(output);
        ExpectRoundTrip<MediaOutput>(output, JsonToMediaOutputConverter(), MediaOutputToJsonConverter());
        ExpectRoundTrip<Speed>(generator.Document("Speed"));
        ExpectRoundTrip<SequenceOutput>(generator.Document("SequenceOutput"));
        ExpectRoundTrip<Node>(generator.Document("Node"));
        ExpectRoundTrip<std::unique_ptr<Boundary>>(generator.Document("Boundary"));
    }
}

/// Each member of a document counts: what is read without one of them differs from the whole and from what is read
/// without another one, or from one of `others`. Copies do not differ.
template <typename Entity>
void ExpectEachMemberCounts(const std::string& full, std::vector<std::string> others = {})
{
    const auto json = Parse(full);
    others.push_back(full);
    for (const auto& name : json.getMemberNames())
    {
        auto without = json;
        if (json[name].isString())
            without[name] = "";
        else
            without.removeMember(name);
        if (name != "_type")
            others.push_back(without.toStyledString());
    }
    std::vector<Entity> entities(others.size());
    for (std::size_t i = 0; i < others.size(); ++i)
        Read(others[i], entities[i]);
    for (std::size_t left = 0; left < entities.size(); ++left)
    {
        for (std::size_t right = 0; right < entities.size(); ++right)
        {
            EXPECT_EQ(entities[left] == entities[right], left == right) << others[left] << others[right];
            EXPECT_EQ(entities[left] != entities[right], left != right) << others[left] << others[right];
        }
        Entity copy(entities[left]);
        EXPECT_TRUE(copy == entities[left]) << others[left];
        EXPECT_TRUE(Entity(std::move(copy)) == entities[left]) << others[left];
    }
}

TEST(Entities, AreEqualMemberByMember)
{
    ExpectEachMemberCounts<MediaAsset>(fullAsset);
    ExpectEachMemberCounts<MediaInput>(fullInput);
    ExpectEachMemberCounts<MediaOutput>(fullOutput);
    auto reversed = Parse(fullNode), otherCase = reversed;
    reversed["gbeIpAddresses"][0].swap(reversed["gbeIpAddresses"][1]);
    otherCase["id"] = "N1";
    ExpectEachMemberCounts<Node>(fullNode, {reversed.toStyledString(), otherCase.toStyledString()});
    // The next block of the full document is an empty one.
    auto sequence = Parse(fullSequenceOutput);
    sequence["nextAssetBlockOnAir"]["id"] = "b2";
    ExpectEachMemberCounts<SequenceOutput>(sequence.toStyledString(),
                                           {R"({"editMode":false})", R"({"assetBlockOnAir":{"id":"b1"}})",
                                            R"({"assetBlockOnAir":{"mediaAsset":{"id":"a1"}}})"});
}

// Each thread has its targets; the converters, and what they make on first use, are shared.
TEST(Converters, ServeEightThreads)
{
    const JsonToMediaIOConverter channelReader;
    const MediaIOToJsonConverter channelWriter(std::make_shared<TimePointToJsonObjectConverter>());
    const JsonToNodeConverter nodeReader;
    const NodeToJsonConverter nodeWriter;
    std::vector<std::thread> threads;
    for (std::uint32_t seed = 0; seed < 8; ++seed)
        threads.emplace_back(
            [&, seed]
            {
                ModelGenerator generator(seed / 2);
                for (int i = 0; i < 60; ++i)
                {
                    ExpectRoundTrip<MediaOutput>(generator.Document("MediaOutput"), channelReader, channelWriter);
                    ExpectRoundTrip<MediaInput>(generator.Document("MediaInput"), channelReader, channelWriter);
                    ExpectRoundTrip<Node>(generator.Document("Node"), nodeReader, nodeWriter);
                }
            });
    for (auto& thread : threads)
        thread.join();
}

} // namespace
} // namespace Qiv::Tests
