// Writing whole entities, the library beside its peers; and the main function. Each benchmark is named
// "<job>: <work>|<who>"; run.py puts the times of one work in proportion. "--repeat NAME TIMES" does one work so
// many times and nothing else, for tools that count instructions.

#include "Peers.h"
#include "Works.h"

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaInputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>

#include <benchmark/benchmark.h>
#include <json/writer.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace Bench;
using namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json;
using benchmark::DoNotOptimize;
using benchmark::RegisterBenchmark;
using benchmark::State;
using Qiv::Common::Serialization::Json::Stringer;
using Qiv::DataModel::Tarvonel::Serialization::Nodes::Json::NodeToJsonConverter;
using ValidatingRapidWriter = rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>,
                                                rapidjson::CrtAllocator, rapidjson::kWriteValidateEncodingFlag>;

template <typename Converter, typename Entity>
std::string LibraryText(const Entity& entity)
{
    Stringer stringer;
    static_cast<void>(Converter().To(entity, stringer));
    return stringer.ToString();
}

template <typename Entity>
std::string RapidText(const Entity& entity)
{
    rapidjson::StringBuffer buffer;
    RapidWriter writer(buffer);
    Write(writer, entity);
    return buffer.GetString();
}

void ExpectSameText(const std::string& library, const std::string& peer)
{
    if (library == peer)
        return;
    std::cerr << "The texts differ, so the times would mean nothing:\n" << library << '\n' << peer << '\n';
    std::exit(EXIT_FAILURE);
}

template <typename Converter, typename Entity>
void RegisterWriters(const std::string& work, const Entity& entity)
{
    ExpectSameText(LibraryText<Converter>(entity), RapidText(entity));
    RegisterBenchmark((work + "|library").c_str(),
                      [entity](State& state)
                      {
                          const Converter converter;
                          for (auto _ : state)
                          {
                              Stringer stringer;
                              static_cast<void>(converter.To(entity, stringer));
                              DoNotOptimize(stringer);
                          }
                      });
    RegisterBenchmark((work + "|RapidJSON").c_str(),
                      [entity](State& state)
                      {
                          for (auto _ : state)
                          {
                              rapidjson::StringBuffer buffer;
                              RapidWriter writer(buffer);
                              Write(writer, entity);
                              DoNotOptimize(buffer.GetString());
                          }
                      });
}

void RegisterManyChannels(int count)
{
    const auto work = "writing: " + std::to_string(count) + " channels";
    RegisterBenchmark((work + "|library").c_str(),
                      [count](State& state)
                      {
                          const auto channel = FullMediaInput();
                          const MediaInputToJsonConverter converter;
                          for (auto _ : state)
                          {
                              Stringer stringer;
                              stringer.Array();
                              for (int i = 0; i < count; ++i)
                                  static_cast<void>(converter.To(channel, stringer));
                              stringer.CloseArray();
                              DoNotOptimize(stringer);
                          }
                          state.SetItemsProcessed(count * state.iterations());
                      });
    RegisterBenchmark((work + "|RapidJSON").c_str(),
                      [count](State& state)
                      {
                          const auto channel = FullMediaInput();
                          for (auto _ : state)
                          {
                              rapidjson::StringBuffer buffer;
                              RapidWriter writer(buffer);
                              writer.StartArray();
                              for (int i = 0; i < count; ++i)
                                  Write(writer, channel);
                              writer.EndArray();
                              DoNotOptimize(buffer.GetString());
                          }
                          state.SetItemsProcessed(count * state.iterations());
                      });
}

void RegisterLongText(const std::string& work, const std::string& unit)
{
    std::string text;
    while (text.size() < 10000)
        text += unit;
    RegisterBenchmark((work + "|library").c_str(),
                      [text](State& state)
                      {
                          for (auto _ : state)
                          {
                              Stringer stringer;
                              stringer.Value(text);
                              DoNotOptimize(stringer);
                          }
                      });
    RegisterBenchmark((work + "|RapidJSON").c_str(),
                      [text](State& state)
                      {
                          for (auto _ : state)
                          {
                              rapidjson::StringBuffer buffer;
                              ValidatingRapidWriter writer(buffer);
                              writer.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
                              DoNotOptimize(buffer.GetString());
                          }
                      });
}

void RegisterOtherWriters(const std::string& work, const MediaInput& channel)
{
    ExpectSameText(LibraryText<MediaInputToJsonConverter>(channel), ToNlohmann(channel).dump());
    RegisterBenchmark((work + "|nlohmann").c_str(),
                      [channel](State& state)
                      {
                          for (auto _ : state)
                              DoNotOptimize(ToNlohmann(channel).dump());
                      });
    RegisterBenchmark((work + "|jsoncpp").c_str(),
                      [channel](State& state)
                      {
                          Json::StreamWriterBuilder builder;
                          builder["indentation"] = "";
                          for (auto _ : state)
                              DoNotOptimize(Json::writeString(builder, ToJsoncpp(channel)));
                      });
}

// Lists the works that can be repeated, or repeats one.
int Repeat(const std::vector<std::string>& arguments)
{
    if (arguments.empty())
    {
        for (const auto& [name, repeat] : RepeatedWorks())
            std::cout << name << '\n';
        return EXIT_SUCCESS;
    }
    const auto work = RepeatedWorks().find(arguments[0]);
    if (arguments.size() != 2 || work == RepeatedWorks().end())
    {
        std::cerr << "--repeat wants the name of a work, and how many times\n";
        return EXIT_FAILURE;
    }
    work->second(std::stoi(arguments[1]));
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    RegisterWriters<MediaInputToJsonConverter>("writing: small MediaInput", SmallMediaInput());
    RegisterWriters<MediaInputToJsonConverter>("writing: full MediaInput", FullMediaInput());
    RegisterOtherWriters("writing: full MediaInput", FullMediaInput());
    RegisterWriters<MediaOutputToJsonConverter>("writing: full MediaOutput", FullMediaOutput());
    RegisterWriters<NodeToJsonConverter>("writing: full Node", FullNode());
    RegisterManyChannels(1000);
    RegisterManyChannels(10000);
    RegisterLongText("writing: long text with escapes", "a line with \"quotes\", a tab\t, and a new line\n");
    RegisterLongText("writing: long text with non-ASCII letters",
                     "Gr\xC3\xB6\xC3\x9F"
                     "e, \xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82, "
                     "\xE6\x97\xA5\xE6\x9C\xAC ");
    const bool repeats = argc > 1 && std::string_view(argv[1]) == "--repeat";
    RegisterReading(!repeats);

    if (repeats)
        return Repeat({argv + 2, argv + argc});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
