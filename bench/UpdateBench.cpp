// Updates and the mirror, beside what a caller does without them: "library" is the work, the other what it is measured
// by.

#include "Model.h"

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Mirror.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/WriteUpdate.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>

#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

namespace
{

using namespace Bench;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using benchmark::DoNotOptimize;
using benchmark::State;
using Qiv::Common::Serialization::Json::Stringer;
using Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors::Mirror;

std::string IdOf(int number)
{
    return "41230-rec-" + std::to_string(number);
}

// What a recorder tells many times a second.
std::string UpdateOf(int number, bool isEven)
{
    return R"({"_type":"MediaInput","id":")" + IdOf(number) + R"(","lastTodTimecode":"2016-03-21T14:05:09:)" +
           (isEven ? "00" : "01") + R"(@25","remainingCapacity":{"_type":"Duration","value":"48690320000000"}})";
}

// Updates of all channels, in random order, in texts that are at hand.
std::vector<std::string> UpdateTexts(int channels, int count)
{
    std::mt19937 random(1);
    std::vector<std::string> updates;
    for (int i = 0; i < count; ++i)
        updates.push_back(UpdateOf(static_cast<int>(random() % static_cast<unsigned>(channels)), i % 2 == 0));
    return updates;
}

constexpr int updateCount = 20000; // at least two for each of 10,000 channels

void ApplyToMirror(State& state, int channels)
{
    Mirror mirror;
    auto channel = FullMediaInput();
    for (int i = 0; i < channels; ++i)
    {
        channel.Id(IdOf(i));
        DoNotOptimize(mirror.Apply(Documents::ToText(channel)));
    }
    const auto updates = UpdateTexts(channels, updateCount);
    std::size_t next = 0;
    for (auto _ : state)
    {
        DoNotOptimize(mirror.Apply(updates[next]));
        next = (next + 1) % updates.size();
    }
    state.SetItemsProcessed(state.iterations());
}

void MergeAtHand(State& state)
{
    auto channel = FullMediaInput();
    const auto updates = UpdateTexts(1, updateCount);
    std::size_t next = 0;
    for (auto _ : state)
    {
        DoNotOptimize(MergeText(updates[next], channel));
        next = (next + 1) % updates.size();
    }
}

// Two states of a recorder one frame apart, as a sender holds them.
struct States
{
    MediaInput before = FullMediaInput();
    MediaInput after = IndependentCopy(before);

    States() { after.LastTodTimecode(before.LastTodTimecode() + 1); }
};

void WriteSmallUpdate(State& state)
{
    const States states;
    for (auto _ : state)
    {
        Stringer stringer;
        DoNotOptimize(Updates::WriteUpdate(states.before, states.after, stringer));
        DoNotOptimize(stringer);
    }
}

void WriteWholeChannel(State& state)
{
    const States states;
    const Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::MediaIOToJsonConverter converter;
    for (auto _ : state)
    {
        Stringer stringer;
        static_cast<void>(converter.To(states.after, stringer));
        DoNotOptimize(stringer);
    }
}

BENCHMARK_CAPTURE(ApplyToMirror, many, 10000)->Name("updates: apply to one of 10000 channels|library");
BENCHMARK_CAPTURE(ApplyToMirror, few, 10)->Name("updates: apply to one of 10000 channels|10 channels");
BENCHMARK(MergeAtHand)->Name("updates: apply to one of 10000 channels|MergeText at hand");
BENCHMARK(WriteSmallUpdate)->Name("updates: write a small one|library");
BENCHMARK(WriteWholeChannel)->Name("updates: write a small one|whole channel");

} // namespace
