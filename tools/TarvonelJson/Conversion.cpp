#include <TarvonelJson/Conversion.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
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

#include <json/value.h>

#include <memory>
#include <string_view>
#include <type_traits>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel;
using namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json;
using namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json;
using Qiv::Common::Serialization::Json::JsonObject;
using Qiv::Common::Serialization::Json::Stringer;
using Serialization::Json::DocumentKind;

namespace
{

template <typename Reader, typename Writer, typename Entity>
Result ReadAndWriteWith(const JsonObject& document, Entity entity, Stringer& stringer)
{
    if (auto result = Reader().To(document, entity); !result)
        return result;
    if constexpr (std::is_same_v<Entity, std::unique_ptr<MediaIOs::Boundary>>)
        return Writer().To(*entity, stringer);
    else
        return Writer().To(entity, stringer);
}

} // namespace

Result ReadAndWrite(const JsonObject& document, DocumentKind kind, Stringer& stringer)
{
    switch (kind)
    {
    case DocumentKind::MediaInput:
        return ReadAndWriteWith<JsonToMediaIOConverter, MediaIOToJsonConverter>(document, MediaIOs::MediaInput(),
                                                                                stringer);
    case DocumentKind::MediaOutput:
        return ReadAndWriteWith<JsonToMediaIOConverter, MediaIOToJsonConverter>(document, MediaIOs::MediaOutput(),
                                                                                stringer);
    case DocumentKind::Node:
        return ReadAndWriteWith<JsonToNodeConverter, NodeToJsonConverter>(document, Nodes::Node(), stringer);
    case DocumentKind::SequenceOutput:
        return ReadAndWriteWith<JsonToSequenceOutputConverter, SequenceOutputToJsonConverter>(
            document, MediaIOs::SequenceOutput(), stringer);
    case DocumentKind::Speed:
        return ReadAndWriteWith<JsonToSpeedConverter, SpeedToJsonConverter>(document, MediaIOs::Speed(), stringer);
    case DocumentKind::Boundary:
        return ReadAndWriteWith<JsonToBoundaryConverter, BoundaryToJsonConverter>(
            document, std::unique_ptr<MediaIOs::Boundary>(), stringer);
    }
    return NoKindMessage(document);
}

std::string NoKindMessage(const JsonObject& document)
{
    const std::string known = ": MediaInput, MediaOutput, Node, SequenceOutput, Speed, BoundaryAbsolute or "
                              "BoundaryRelative expected";
    constexpr std::string_view typeKey = "_type";
    const auto* const type =
        document.isObject() ? document.find(typeKey.data(), typeKey.data() + typeKey.size()) : nullptr;
    if (type == nullptr || !type->isString())
        return "no \"_type\"" + known;
    return "unknown \"_type\" " + Stringer::ToEscapedString(type->asCString()) + known;
}

Stringer MakeStringer(bool isPretty)
{
    return isPretty ? Stringer::PrettyStringer() : Stringer();
}

} // namespace TarvonelJson
