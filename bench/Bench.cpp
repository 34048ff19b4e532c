// Conversions of whole entities, the library beside its peers. Each benchmark is named "<work>|<who>"; run.py puts the
// times of one work in proportion.

#include "Peers.h"

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaInputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaOutputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaInputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>

#include <benchmark/benchmark.h>
#include <json/reader.h>
#include <json/writer.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

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
    const auto work = "write " + std::to_string(count) + " channels";
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

Json::Value Parsed(const std::string& text)
{
    Json::Value json;
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    reader->parse(text.data(), text.data() + text.size(), &json, nullptr);
    return json;
}

// What the library and its peers write of the entity that they have read from the text.
template <typename Reader, typename Writer, typename Entity>
std::array<std::string, 3> TextsOfReadEntity(const std::string& text)
{
    Entity byLibrary, byLookUp, byNlohmann;
    static_cast<void>(Reader().To(Parsed(text), byLibrary));
    Read(Parsed(text), byLookUp);
    try
    {
        Read(nlohmann::json::parse(text), byNlohmann);
    }
    catch (const std::invalid_argument&)
    {
        // what has been read before stays
    }
    return {LibraryText<Writer>(byLibrary), LibraryText<Writer>(byLookUp), LibraryText<Writer>(byNlohmann)};
}

// Visits the text of the document once for each of its objects, which then has a wrong "_type".
template <typename Visit>
void VisitWrongTypes(const Json::Value& document, Json::Value& object, const Visit& visit)
{
    for (auto& member : object)
    {
        if (member.isObject())
            VisitWrongTypes(document, member, visit);
    }
    if (object.isMember("_type"))
    {
        auto& type = object["_type"];
        const auto right = type;
        type = "Other";
        visit(document.toStyledString());
        type = right;
    }
}

// All must read the same, and none may take an object of a wrong type: a reader that looks at less is no measure.
template <typename Reader, typename Writer, typename Entity>
void ExpectEqualCare(const std::string& text)
{
    for (const auto& read : TextsOfReadEntity<Reader, Writer, Entity>(text))
        ExpectSameText(text, read);
    auto document = Parsed(text);
    VisitWrongTypes(document, document,
                    [&text](const std::string& wrong)
                    {
                        const auto texts = TextsOfReadEntity<Reader, Writer, Entity>(wrong);
                        if (std::find(texts.begin(), texts.end(), text) == texts.end())
                            return;
                        std::cerr << "Some reader does not check the type, so its time would mean nothing:\n"
                                  << wrong << '\n';
                        std::exit(EXIT_FAILURE);
                    });
}

template <typename Reader, typename Writer, typename Entity>
void RegisterReaders(const std::string& name, const Entity& entity)
{
    const auto text = LibraryText<Writer>(entity);
    ExpectEqualCare<Reader, Writer, Entity>(text);

    RegisterBenchmark(("read " + name + "|library").c_str(),
                      [text](State& state)
                      {
                          const auto json = Parsed(text);
                          const Reader reader;
                          for (auto _ : state)
                          {
                              Entity target;
                              static_cast<void>(reader.To(json, target));
                              DoNotOptimize(target);
                          }
                      });
    RegisterBenchmark(("read " + name + "|plain look-ups").c_str(),
                      [text](State& state)
                      {
                          const auto json = Parsed(text);
                          for (auto _ : state)
                          {
                              Entity target;
                              Read(json, target);
                              DoNotOptimize(target);
                          }
                      });
    RegisterBenchmark(("read " + name + "|nlohmann").c_str(),
                      [text](State& state)
                      {
                          const auto json = nlohmann::json::parse(text);
                          for (auto _ : state)
                          {
                              Entity target;
                              Read(json, target);
                              DoNotOptimize(target);
                          }
                      });
    // Where the time of the next pair goes: what jsoncpp, the library's parser, takes of it.
    RegisterBenchmark(("text to tree of " + name + "|library").c_str(),
                      [text](State& state)
                      {
                          const std::unique_ptr<Json::CharReader> parser(Json::CharReaderBuilder().newCharReader());
                          for (auto _ : state)
                          {
                              Json::Value json;
                              parser->parse(text.data(), text.data() + text.size(), &json, nullptr);
                              DoNotOptimize(json);
                          }
                      });
    RegisterBenchmark(("text to tree of " + name + "|nlohmann").c_str(),
                      [text](State& state)
                      {
                          for (auto _ : state)
                              DoNotOptimize(nlohmann::json::parse(text));
                      });
    RegisterBenchmark(("text to " + name + "|library").c_str(),
                      [text](State& state)
                      {
                          const std::unique_ptr<Json::CharReader> parser(Json::CharReaderBuilder().newCharReader());
                          const Reader reader;
                          for (auto _ : state)
                          {
                              Json::Value json;
                              parser->parse(text.data(), text.data() + text.size(), &json, nullptr);
                              Entity target;
                              static_cast<void>(reader.To(json, target));
                              DoNotOptimize(target);
                          }
                      });
    RegisterBenchmark(("text to " + name + "|nlohmann").c_str(),
                      [text](State& state)
                      {
                          for (auto _ : state)
                          {
                              Entity target;
                              Read(nlohmann::json::parse(text), target);
                              DoNotOptimize(target);
                          }
                      });
}

} // namespace

int main(int argc, char** argv)
{
    RegisterWriters<MediaInputToJsonConverter>("write small MediaInput", SmallMediaInput());
    RegisterWriters<MediaInputToJsonConverter>("write full MediaInput", FullMediaInput());
    RegisterOtherWriters("write full MediaInput", FullMediaInput());
    RegisterWriters<MediaOutputToJsonConverter>("write full MediaOutput", FullMediaOutput());
    RegisterWriters<NodeToJsonConverter>("write full Node", FullNode());
    RegisterManyChannels(1000);
    RegisterManyChannels(10000);
    RegisterLongText("write long text with escapes", "a line with \"quotes\", a tab\t, and a new line\n");
    RegisterLongText("write long text with non-ASCII letters", "Gr\xC3\xB6\xC3\x9F"
                                                               "e, \xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82, "
                                                               "\xE6\x97\xA5\xE6\x9C\xAC ");
    RegisterReaders<JsonToMediaInputConverter, MediaInputToJsonConverter>("full MediaInput", FullMediaInput());
    RegisterReaders<JsonToMediaOutputConverter, MediaOutputToJsonConverter>("full MediaOutput", FullMediaOutput());

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
