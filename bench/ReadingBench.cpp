// Reading whole entities, from trees and from text, the library beside its peers.

#include "Peers.h"
#include "Works.h"

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaInputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaOutputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/JsonToNodeConverter.h>

#include <cstddef>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace
{

using namespace Bench;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json;
using benchmark::DoNotOptimize;
using Documents::ToText;
using Qiv::DataModel::Tarvonel::Serialization::Nodes::Json::JsonToNodeConverter;

Json::Value Parsed(const std::string& text)
{
    Json::Value json;
    static_cast<void>(ParseText(text, json));
    return json;
}

template <typename Entity>
void ReadByRapidJson(const std::string& text, Entity& target)
{
    rapidjson::Document document;
    document.Parse(text.data(), text.size());
    if (!document.HasParseError() && document.IsObject())
        Read(document, target);
}

struct ReadEntity
{
    std::string who;
    std::string text;
};

// What each writes of the entity that it has read from the text, the library first.
template <typename Reader, typename Entity>
std::vector<ReadEntity> ReadByAll(const std::string& text)
{
    Entity byLibrary, fromTree, byLookUp, byNlohmann, byRapidJson;
    static_cast<void>(ReadSnapshotText(text, byLibrary));
    static_cast<void>(Reader().To(Parsed(text), fromTree));
    Read(Parsed(text), byLookUp);
    ReadByRapidJson(text, byRapidJson);
    try
    {
        Read(nlohmann::json::parse(text), byNlohmann);
    }
    catch (const std::exception&)
    {
        // what has been read before stays
    }
    return {{"library", ToText(byLibrary)},
            {"library, from a tree", ToText(fromTree)},
            {"plain look-ups", ToText(byLookUp)},
            {"nlohmann", ToText(byNlohmann)},
            {"RapidJSON", ToText(byRapidJson)}};
}

[[noreturn]] void Refuse(const std::string& who, const std::string& why, const std::string& document)
{
    std::cerr << who << ' ' << why << ", so its time would mean nothing:\n" << document << '\n';
    std::exit(EXIT_FAILURE);
}

// Visits the text of the document once for each of its objects, which then has a wrong "_type".
template <typename Visit>
void VisitWrongTypes(const Json::Value& document, Json::Value& object, const Visit& visit)
{
    for (auto& member : object)
        if (member.isObject())
            VisitWrongTypes(document, member, visit);
    if (object.isMember("_type"))
    {
        Json::Value type("Other");
        object["_type"].swap(type);
        visit(document.toStyledString());
        object["_type"].swap(type);
    }
}

// All must read the same, none may take an object of a wrong type, and a member that is null is absent: a reader that
// looks at less is no measure.
template <typename Reader, typename Entity>
void ExpectEqualCare(const std::string& text)
{
    for (const auto& read : ReadByAll<Reader, Entity>(text))
        if (read.text != text)
            Refuse(read.who, "reads another entity", text);
    auto document = Parsed(text);
    VisitWrongTypes(document, document,
                    [&](const std::string& wrong)
                    {
                        for (const auto& read : ReadByAll<Reader, Entity>(wrong))
                            if (read.text == text)
                                Refuse(read.who, "does not check the type", wrong);
                    });
    for (auto member = document.begin(); member != document.end(); ++member)
    {
        if (member.name() == "_type")
            continue; // checked above; of a null, the library's readers think differently
        Json::Value null;
        member->swap(null);
        const auto without = document.toStyledString();
        member->swap(null);
        Entity target;
        if (!ReadSnapshotText(without, target))
            continue; // a member that may not be absent
        for (const auto& read : ReadByAll<Reader, Entity>(without))
            if (read.text != ToText(target))
                Refuse(read.who, "does not take null for absent", without);
    }
}

template <typename Reader, typename Entity>
void RegisterReaders(const std::string& name, const Entity& entity, bool looksAtPeers)
{
    const auto text = ToText(entity);
    if (looksAtPeers)
        ExpectEqualCare<Reader, Entity>(text);

    RegisterWork("reading: " + name + "|library",
                 [text]
                 {
                     return [json = Parsed(text), reader = Reader()]
                     {
                         Entity target;
                         static_cast<void>(reader.To(json, target));
                         DoNotOptimize(target);
                     };
                 });
    RegisterWork("reading: " + name + "|plain look-ups",
                 [text]
                 {
                     return [json = Parsed(text)]
                     {
                         Entity target;
                         Read(json, target);
                         DoNotOptimize(target);
                     };
                 });
    RegisterWork("reading: " + name + "|nlohmann",
                 [text]
                 {
                     return [json = nlohmann::json::parse(text)]
                     {
                         Entity target;
                         Read(json, target);
                         DoNotOptimize(target);
                     };
                 });
    RegisterWork("text: " + name + "|library",
                 [text]
                 {
                     return [text]
                     {
                         Entity target;
                         DoNotOptimize(ReadSnapshotText(text, target));
                         DoNotOptimize(target);
                     };
                 });
    RegisterWork("text: " + name + "|nlohmann",
                 [text]
                 {
                     return [text]
                     {
                         Entity target;
                         Read(nlohmann::json::parse(text), target);
                         DoNotOptimize(target);
                     };
                 });
    RegisterWork("text: " + name + "|RapidJSON",
                 [text]
                 {
                     return [text]
                     {
                         Entity target;
                         ReadByRapidJson(text, target);
                         DoNotOptimize(target);
                     };
                 });
    RegisterWork("text: tree of " + name + "|library",
                 [text]
                 {
                     return [text]
                     {
                         Json::Value json;
                         DoNotOptimize(ParseText(text, json));
                         DoNotOptimize(json);
                     };
                 });
    RegisterWork("text: tree of " + name + "|nlohmann",
                 [text] { return [text] { DoNotOptimize(nlohmann::json::parse(text)); }; });
}

// What a recorder tells many times a second: one frame and the other, in turn.
std::vector<std::string> UpdatesOf(const MediaInput& channel)
{
    std::vector<std::string> updates;
    for (const char* frame : {"00", "01"})
        updates.push_back(R"({"_type":"MediaInput","id":")" + channel.Id().Value() +
                          R"(","lastTodTimecode":"2016-03-21T14:05:09:)" + frame +
                          R"(@25","remainingCapacity":{"_type":"Duration","value":"3590000000000"}})");
    return updates;
}

template <typename Merge>
void RegisterMerge(const std::string& who, Merge merge)
{
    RegisterWork("text: small update merged into full MediaInput|" + who,
                 [merge]
                 {
                     auto channel = FullMediaInput();
                     auto updates = UpdatesOf(channel);
                     return [merge, channel, updates, next = std::size_t{0}]() mutable
                     {
                         merge(updates[next], channel);
                         DoNotOptimize(channel);
                         next = 1 - next;
                     };
                 });
}

void RegisterMerges()
{
    RegisterMerge("library",
                  [](const std::string& text, MediaInput& channel) { DoNotOptimize(MergeText(text, channel)); });
    RegisterMerge("nlohmann",
                  [](const std::string& text, MediaInput& channel) { Read(nlohmann::json::parse(text), channel); });
    RegisterMerge("RapidJSON", ReadByRapidJson<MediaInput>);
}

// Texts of that many channels, read one after the other; timed is one of them.
void RegisterChannels(const std::string& who, int count)
{
    RegisterWork("text: each of 10000 MediaInputs|" + who,
                 [count]
                 {
                     std::vector<std::string> texts;
                     auto channel = FullMediaInput();
                     for (int i = 0; i < count; ++i)
                     {
                         channel.Id("recorder-41230-" + std::to_string(i));
                         texts.push_back(ToText(channel));
                     }
                     return [texts, next = std::size_t{0}]() mutable
                     {
                         MediaInput target;
                         DoNotOptimize(ReadSnapshotText(texts[next], target));
                         DoNotOptimize(target);
                         if (++next == texts.size())
                             next = 0;
                     };
                 });
}

} // namespace

void Bench::RegisterReading(bool looksAtPeers)
{
    RegisterReaders<JsonToMediaInputConverter>("full MediaInput", FullMediaInput(), looksAtPeers);
    RegisterReaders<JsonToMediaOutputConverter>("full MediaOutput", FullMediaOutput(), looksAtPeers);
    RegisterReaders<JsonToNodeConverter>("full Node", FullNode(), looksAtPeers);
    RegisterMerges();
    RegisterChannels("library", 10000);
    RegisterChannels("10 of them", 10);
}
