// Counts the allocations of one conversion each, as lines "<work>|<count>".

#include "Peers.h"

#include <Qiv/Common/Serialization/Json/Stringer.h>
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
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace
{

using namespace Bench;
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
    std::cout << name << '|' << allocations - before << '\n';
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

} // namespace

int main()
{
    CountWriting<MediaInputToJsonConverter>("write small MediaInput", SmallMediaInput());
    const auto input = CountWriting<MediaInputToJsonConverter>("write full MediaInput", FullMediaInput());
    const auto output = CountWriting<MediaOutputToJsonConverter>("write full MediaOutput", FullMediaOutput());
    CountWriting<NodeToJsonConverter>("write full Node", FullNode());
    CountReading<JsonToMediaInputConverter, MediaInput>("read full MediaInput", input);
    CountReading<JsonToMediaOutputConverter, MediaOutput>("read full MediaOutput", output);

    const std::string timeCode = "2016-03-21T14:05:09:17@25";
    const std::string duration = "3600000000000";
    Count("read a time code",
          [&]
          {
              const QivTimeCodeParser parser;
              if (parser.IsStringFormatValid(timeCode))
                  static_cast<void>(parser.Parse(timeCode));
          });
    Count("read a duration",
          [&]
          {
              const QivDurationParser parser;
              if (parser.IsStringFormatValid(duration))
                  static_cast<void>(parser.Parse(duration));
          });
}
