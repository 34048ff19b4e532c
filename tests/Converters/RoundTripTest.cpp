#include "Conversions.h"
#include "ModelGenerator.h"

#include <gtest/gtest.h>

#include <pthread.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace Qiv::Tests
{
namespace
{

/// The text of an entity, which must survive being written and read.
template <typename Entity, typename Reader = ReaderOf<Entity>, typename Writer = WriterOf<Entity>>
std::string ExpectRoundTrip(const Entity& entity, const Reader& reader = Reader(), const Writer& writer = Writer())
{
    const auto text = Written(entity, writer);
    Entity read;
    EXPECT_TRUE(reader.To(Parse(text), read) && read == entity) << text;
    EXPECT_EQ(Written(read, writer), text);
    return text;
}

TEST(Converters, KeepEveryEntityOfTheModel)
{
    for (std::uint32_t seed = 0; seed < 1500; ++seed)
    {
        SCOPED_TRACE(seed);
        ModelGenerator generator(seed);
        const auto input = generator.MakeMediaInput();
        const auto output = generator.MakeMediaOutput();
        ExpectRoundTrip(input);
        ExpectRoundTrip(input, JsonToMediaInputConverter(), MediaInputToJsonConverter());
        ExpectRoundTrip(output);
        ExpectRoundTrip(output, JsonToMediaOutputConverter(), MediaOutputToJsonConverter());
        ExpectRoundTrip(generator.MakeSpeed());
        ExpectRoundTrip(generator.MakeSequenceOutput());
        ExpectRoundTrip(generator.MakeNode());

        const auto boundary = generator.MakeBoundary();
        EXPECT_TRUE(*FromText<std::unique_ptr<Boundary>>(Written(boundary)) == *boundary);
        if (HasFailure())
            break;
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
    for (const auto& left : entities)
    {
        for (const auto& right : entities)
            EXPECT_EQ(left == right, &left == &right) << others[&left - &entities[0]] << others[&right - &entities[0]];
        Entity copy(left);
        EXPECT_TRUE(copy == left && Entity(std::move(copy)) == left) << others[&left - &entities[0]];
    }
}

TEST(Entities, AreEqualMemberByMember)
{
    ExpectEachMemberCounts<MediaInput>(fullInput);
    ExpectEachMemberCounts<MediaOutput>(fullOutput);
    ExpectEachMemberCounts<Node>(fullNode);
    // The next block of the full document is an empty one.
    const auto sequence = ReplacedAll(fullSequenceOutput, Document("$NOBLOCK"), R"({"id":"b2"})");
    ExpectEachMemberCounts<SequenceOutput>(
        sequence, {R"({"assetBlockOnAir":{"id":"b1"}})", R"({"assetBlockOnAir":{"mediaAsset":{"id":"a1"}}})"});
}

// Each thread has its targets; the converters, and what they make on first use, are shared.
TEST(Converters, ServeEightThreads)
{
    const JsonToMediaIOConverter channelReader;
    const MediaIOToJsonConverter channelWriter(std::make_shared<TimePointToJsonObjectConverter>());
    const JsonToNodeConverter nodeReader;
    const NodeToJsonConverter nodeWriter;
    std::string texts[9];
    const auto work = [&](std::string& text)
    {
        for (std::uint32_t seed = 0; seed < 60; ++seed)
        {
            ModelGenerator generator(seed);
            text += ExpectRoundTrip(generator.MakeMediaOutput(), channelReader, channelWriter);
            text += ExpectRoundTrip(generator.MakeMediaInput(), channelReader, channelWriter);
            text += ExpectRoundTrip(generator.MakeNode(), nodeReader, nodeWriter);
        }
    };
    std::vector<std::thread> threads;
    for (auto text = std::next(std::begin(texts)); text != std::end(texts); ++text)
        threads.emplace_back(work, std::ref(*text));
    for (auto& thread : threads)
        thread.join();
    work(texts[0]);
    for (const auto& text : texts)
        EXPECT_TRUE(text == texts[0]);
}

TEST(Converters, NeedLittleStack)
{
    std::pair<JsonObject, std::string> work(Parse(fullOutput), "");
    const auto run = [](void* argument) -> void*
    {
        auto& [json, text] = *static_cast<std::pair<JsonObject, std::string>*>(argument);
        MediaOutput channel;
        text = JsonToMediaIOConverter().To(json, channel) ? Written(channel) : "failed";
        return nullptr;
    };
    pthread_attr_t attributes;
    pthread_t thread{};
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &work), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    EXPECT_EQ(work.second, fullOutput);
}

} // namespace
} // namespace Qiv::Tests
