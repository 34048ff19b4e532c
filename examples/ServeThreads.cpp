// One reader, one writer and one parsed document serve eight threads. Each thread has targets of its own.
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaIOConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>

#include <atomic>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

using namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json;
using Qiv::DataModel::Tarvonel::MediaIOs::MediaInput;

int main()
{
    constexpr int threadCount = 8;
    constexpr int channelsPerThread = 250;
    const std::string text = R"({"_type":"MediaInput","id":"rec-1","name":"Camera 1","recordingStatus":"Recording",)"
                             R"("lastTodTimecode":"2016-03-21T14:05:09:17@25"})";

    const JsonToMediaIOConverter reader;
    const MediaIOToJsonConverter writer;
    Json::Value document;
    if (!Qiv::DataModel::Tarvonel::Serialization::Json::ParseText(text, document))
        return 1;
    const auto& shared = document; // only read from here on

    std::atomic<int> good{0};
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int i = 0; i < threadCount; ++i)
    {
        threads.emplace_back(
            [&]
            {
                for (int n = 0; n < channelsPerThread; ++n)
                {
                    MediaInput channel;
                    Stringer out;
                    if (reader.To(shared, channel) && writer.To(channel, out) && out.ToString() == text)
                        ++good;
                }
            });
    }
    for (auto& thread : threads)
        thread.join();
    std::cout << good << " of " << threadCount * channelsPerThread << " channels came back as they went in\n";
}
