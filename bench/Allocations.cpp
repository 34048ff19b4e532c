// Counts the allocations of one conversion each, as lines "<work>|<count>|<those that the entity does not keep>"; the
// last is empty where nothing is kept.

#include "Peers.h"

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaInputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaOutputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaInputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>
#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <json/reader.h>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <new>
#include <string>

namespace
{

std::size_t allocations = 0;
std::size_t releases = 0;

} // namespace

void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    releases += memory != nullptr ? 1 : 0;
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

namespace
{

using namespace Bench;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json;
using namespace Qiv::TimePoints;
using Qiv::Common::Serialization::Json::Stringer;
using Qiv::DataModel::Tarvonel::Serialization::Nodes::Json::NodeToJsonConverter;

// The second run counts: the first one also makes the texts of enumerations and the converters that are kept.
template <typename Work>
void Count(const char* name, Work work)
{
    work();
    const auto before = allocations;
    work();
    std::cout << name << '|' << allocations - before << "|\n";
}

template <typename Converter, typename Entity>
std::string CountWriting(const char* name, const Entity& entity)
{
    const Converter converter;
    Stringer stringer;
    static_cast<void>(converter.To(entity, stringer)); // grows the text, so that what is left is the converters' own
    Count(name,
          [&]
          {
              Stringer fresh;
              static_cast<void>(converter.To(entity, fresh));
          });
    return stringer.ToString();
}

template <typename Converter, typename Entity>
void CountReading(const char* name, const std::string& text)
{
    Json::Value json;
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    reader->parse(text.data(), text.data() + text.size(), &json, nullptr);
    const Converter converter;
    Count(name,
          [&]
          {
              Entity target;
              static_cast<void>(converter.To(json, target));
          });
}

// What the entity holds in the end is what it releases: its own texts and objects.
template <typename Entity>
void CountSnapshot(const char* name, const Entity& entity)
{
    const auto text = Documents::ToText(entity);
    std::size_t made = 0;
    std::size_t releasedBefore = 0;
    for (int run = 0; run < 2; ++run)
    {
        Entity target;
        const auto allocationsBefore = allocations;
        const auto result = ReadSnapshotText(text, target);
        made = allocations - allocationsBefore;
        if (!result || Documents::ToText(target) != text)
            std::exit(EXIT_FAILURE);
        releasedBefore = releases;
    }
    std::cout << name << '|' << made << '|' << made - (releases - releasedBefore) << '\n';
}

} // namespace

int main()
{
    CountWriting<MediaInputToJsonConverter>("writing: small MediaInput", SmallMediaInput());
    const auto input = CountWriting<MediaInputToJsonConverter>("writing: full MediaInput", FullMediaInput());
    const auto output = CountWriting<MediaOutputToJsonConverter>("writing: full MediaOutput", FullMediaOutput());
    CountWriting<NodeToJsonConverter>("writing: full Node", FullNode());
    CountReading<JsonToMediaInputConverter, MediaInput>("reading: full MediaInput", input);
    CountReading<JsonToMediaOutputConverter, MediaOutput>("reading: full MediaOutput", output);
    CountSnapshot("text: full MediaInput", FullMediaInput());
    CountSnapshot("text: full MediaOutput", FullMediaOutput());
    CountSnapshot("text: full Node", FullNode());

    const std::string timeCode = "2016-03-21T14:05:09:17@25";
    const std::string duration = "3600000000000";
    Count("time codes: check and parse",
          [&]
          {
              const QivTimeCodeParser parser;
              if (parser.IsStringFormatValid(timeCode))
                  static_cast<void>(parser.Parse(timeCode));
          });
    Count("time codes: duration, check and parse",
          [&]
          {
              const QivDurationParser parser;
              if (parser.IsStringFormatValid(duration))
                  static_cast<void>(parser.Parse(duration));
          });
}
