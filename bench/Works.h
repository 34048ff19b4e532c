#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>

namespace Bench
{

/// What is timed, by the name of its benchmark, for tools that count instructions: they have it repeated exactly so
/// many times.
inline std::map<std::string, std::function<void(int)>>& RepeatedWorks()
{
    static std::map<std::string, std::function<void(int)>> works;
    return works;
}

/// Registers a benchmark. `prepare` returns what is timed.
template <typename Prepare>
void RegisterWork(const std::string& name, Prepare prepare)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [prepare](benchmark::State& state)
                                 {
                                     auto work = prepare();
                                     for (auto _ : state)
                                         work();
                                 });
    RepeatedWorks()[name] = [prepare](int times)
    {
        auto work = prepare();
        for (int i = 0; i < times; ++i)
            work();
    };
}

/// Conversions from trees and from text. Peers are looked at first, unless their instructions are counted: that would
/// take longer than the count.
void RegisterReading(bool looksAtPeers);

} // namespace Bench
