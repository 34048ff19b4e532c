#pragma once

#include <Entities.h>
#include <FuzzInput.h>
#include <Json.h>

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/BoundaryToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToBoundaryConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaIOConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSequenceOutputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSpeedConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SequenceOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SpeedToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/JsonToNodeConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>

#include <json/reader.h>

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// From text to documents, from documents to entities, and back.
namespace Fuzz
{

using Qiv::Common::Serialization::Result;
using Qiv::Common::Serialization::Json::Stringer;

/// How jsoncpp parses: as it does by default, strictly, or taking everything that it can take.
enum class Parsing
{
    Default,
    Strict,
    Lenient
};

/// The document in a text; nothing when jsoncpp refuses it.
inline std::optional<Json::Value> Parse(std::string_view text, Parsing parsing)
{
    Json::CharReaderBuilder builder;
    if (parsing == Parsing::Strict)
        Json::CharReaderBuilder::strictMode(&builder.settings_);
    if (parsing == Parsing::Lenient)
        for (const auto* const setting :
             {"allowDroppedNullPlaceholders", "allowNumericKeys", "allowSingleQuotes", "allowSpecialFloats"})
            builder.settings_[setting] = true;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value document;
    try
    {
        std::string errors;
        const std::string terminated(text); // jsoncpp looks behind a carriage return at the end
        if (reader->parse(terminated.data(), terminated.data() + terminated.size(), &document, &errors))
            return document;
    }
    catch (const std::exception&)
    {
        // Documents that are too deep, for one.
    }
    return std::nullopt;
}

inline std::string Message(const Result& result)
{
    return result ? "success" : std::string("failure: ") + result.ErrorMessage();
}

template <typename Entity>
bool AreSame(const Entity& left, const Entity& right)
{
    return left == right;
}

inline bool AreSame(const std::unique_ptr<Boundary>& left, const std::unique_ptr<Boundary>& right)
{
    return left == nullptr || right == nullptr ? left == right : *left == *right;
}

/// How one kind of document is read and written.
template <typename Entity>
struct Conversion
{
    Result (*read)(const Json::Value&, Entity&);
    Result (*write)(const Entity&, Stringer&);
};

template <typename Reader, typename Entity>
Result Read(const Json::Value& json, Entity& entity)
{
    return Reader().To(json, entity);
}

template <typename Writer, typename Entity>
Result Write(const Entity& entity, Stringer& stringer)
{
    return Writer().To(entity, stringer);
}

/// The text of an entity, which must be JSON.
template <typename Entity>
std::string Text(const Conversion<Entity>& conversion, const Entity& entity, Stringer stringer = Stringer())
{
    const auto result = conversion.write(entity, stringer);
    auto text = stringer.ToString();
    Check(result, "what was read can be written", text, Message(result));
    Check(IsStrictJson(text), "what is written is JSON", text);
    return text;
}

/// Whether two entities are equal, and written alike.
template <typename Entity>
bool AreAlike(const Conversion<Entity>& conversion, const Entity& left, const Entity& right)
{
    if constexpr (std::is_same_v<Entity, std::unique_ptr<Boundary>>)
        if (left == nullptr || right == nullptr)
            return left == right;
    return AreSame(left, right) && Text(conversion, left) == Text(conversion, right);
}

template <typename Entity>
Entity Target(bool isFilled)
{
    Entity target{};
    if (isFilled)
        Fill(target);
    return target;
}

using namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json;
using namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json;

/// A channel, as the converters of both kinds read and write it.
template <typename Channel>
constexpr Conversion<Channel> channelConversion{
    [](const Json::Value& json, Channel& channel)
    { return JsonToMediaIOConverter().To(json, static_cast<Qiv::DataModel::Tarvonel::MediaIOs::MediaIO&>(channel)); },
    [](const Channel& channel, Stringer& stringer)
    {
        return MediaIOToJsonConverter().To(static_cast<const Qiv::DataModel::Tarvonel::MediaIOs::MediaIO&>(channel),
                                           stringer);
    }};
constexpr Conversion<SequenceOutput> sequenceOutputConversion{Read<JsonToSequenceOutputConverter>,
                                                              Write<SequenceOutputToJsonConverter>};
constexpr Conversion<Speed> speedConversion{Read<JsonToSpeedConverter>, Write<SpeedToJsonConverter>};
constexpr Conversion<Node> nodeConversion{Read<JsonToNodeConverter>, Write<NodeToJsonConverter>};
constexpr Conversion<std::unique_ptr<Boundary>> boundaryConversion{
    Read<JsonToBoundaryConverter>, [](const std::unique_ptr<Boundary>& boundary, Stringer& stringer)
    { return BoundaryToJsonConverter().To(*boundary, stringer); }};

/// Calls `use` with the conversion of a kind of document.
template <typename Use>
void WithConversion(Qiv::DataModel::Tarvonel::Serialization::Json::DocumentKind kind, const Use& use)
{
    using Qiv::DataModel::Tarvonel::Serialization::Json::DocumentKind;

    switch (kind)
    {
    case DocumentKind::MediaInput:
        return use(channelConversion<MediaInput>);
    case DocumentKind::MediaOutput:
        return use(channelConversion<MediaOutput>);
    case DocumentKind::Node:
        return use(nodeConversion);
    case DocumentKind::SequenceOutput:
        return use(sequenceOutputConversion);
    case DocumentKind::Speed:
        return use(speedConversion);
    case DocumentKind::Boundary:
        return use(boundaryConversion);
    }
}

} // namespace Fuzz
