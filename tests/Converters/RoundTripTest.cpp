#include "Conversions.h"
#include "ModelGenerator.h"

#include <gtest/gtest.h>

#include <pthread.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace Qiv::Tests
{
namespace
{

template <typename Reader, typename Writer, typename Entity>
void ExpectRoundTrip(const Entity& entity, const Reader& reader, const Writer& writer)
{
    const auto text = Written(entity, writer);
    Entity read;
    const auto result = reader.To(Parse(text), read);
    ASSERT_TRUE(result) << result.ErrorMessage() << "\n" << text;
    EXPECT_TRUE(read == entity) << text;
    EXPECT_EQ(Written(read, writer), text);
}

TEST(Converters, KeepEveryEntityOfTheModel)
{
    for (std::uint32_t seed = 0; seed < 1500; ++seed)
    {
        SCOPED_TRACE(seed);
        ModelGenerator generator(seed);
        const auto input = generator.MakeMediaInput();
        const auto output = generator.MakeMediaOutput();
        ExpectRoundTrip(input, JsonToMediaInputConverter(), MediaInputToJsonConverter());
        ExpectRoundTrip(input, JsonToMediaIOConverter(), MediaIOToJsonConverter());
        ExpectRoundTrip(output, JsonToMediaOutputConverter(), MediaOutputToJsonConverter());
        ExpectRoundTrip(output, JsonToMediaIOConverter(), MediaIOToJsonConverter());
        ExpectRoundTrip(generator.MakeSpeed(), JsonToSpeedConverter(), SpeedToJsonConverter());
        ExpectRoundTrip(generator.MakeSequenceOutput(), JsonToSequenceOutputConverter(),
                        SequenceOutputToJsonConverter());
        ExpectRoundTrip(generator.MakeNode(), JsonToNodeConverter(), NodeToJsonConverter());

        const auto boundary = generator.MakeBoundary();
        std::unique_ptr<Boundary> read;
        Read<JsonToBoundaryConverter>(Written<BoundaryToJsonConverter>(boundary), read);
        EXPECT_TRUE(*read == *boundary);
        if (HasFailure())
            break;
    }
}

// Each thread has its targets; the converters, and what they make on first use, are shared.
// Each thread has its targets; the converters, and what they make on first use, are shared.
TEST(Converters, ServeEightThreads)
{
    const JsonToMediaIOConverter channelReader;
    const MediaIOToJsonConverter channelWriter(std::make_shared<TimePointToJsonObjectConverter>());
    const JsonToNodeConverter nodeReader;
    const NodeToJsonConverter nodeWriter;
    std::string texts[9];
    const auto keep = [](std::string& text, const auto& entity, const auto& reader, const auto& writer)
    {
        std::decay_t<decltype(entity)> read;
        const auto written = Written(entity, writer);
        text += reader.To(Parse(written), read) && read == entity ? Written(read, writer) : "failed on " + written;
    };
    const auto work = [&](std::string& text)
    {
        for (std::uint32_t seed = 0; seed < 60; ++seed)
        {
            ModelGenerator generator(seed);
            keep(text, generator.MakeMediaOutput(), channelReader, channelWriter);
            keep(text, generator.MakeMediaInput(), channelReader, channelWriter);
            keep(text, generator.MakeNode(), nodeReader, nodeWriter);
        }
    };
    std::vector<std::thread> threads;
    for (auto text = std::next(std::begin(texts)); text != std::end(texts); ++text)
        threads.emplace_back(work, std::ref(*text));
    for (auto& thread : threads)
        thread.join();
    work(texts[0]);
    for (const auto& text : texts)
        EXPECT_TRUE(text == texts[0] && text.find("failed on ") == std::string::npos);
}

TEST(Converters, NeedLittleStack)
{
    struct Work
    {
        JsonObject json = Parse(fullOutput);
        std::string text;
    } work;
    const auto run = [](void* argument) -> void*
    {
        auto& [json, text] = *static_cast<Work*>(argument);
        MediaOutput channel;
        text = JsonToMediaIOConverter().To(json, channel) ? Written<MediaIOToJsonConverter>(channel) : "failed";
        return nullptr;
    };
    pthread_attr_t attributes;
    pthread_t thread{};
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &work), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    EXPECT_EQ(work.text, fullOutput);
}

} // namespace
} // namespace Qiv::Tests
