#include <Conversions.h>
#include <FuzzInput.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/JsonToSequenceConverter.h>
#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/SequenceToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToMediaAssetConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToSharedReference.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToTimePointConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/SharedReferenceToJson.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaInputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaOutputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMetadataProfileDictionaryConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaInputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MetadataProfileDictionaryToJsonConverter.h>

#include <utility>

using namespace Fuzz;
using namespace Qiv::BusinessEntityModel::Edits::Serialization::Json;
using namespace Qiv::DataModel::MediaAssets::Serialization::Json;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;

namespace
{

/// What was read, whole or in part, can be written, and what can be written comes back.
template <typename Entity>
void RoundTrip(const Conversion<Entity>& conversion, Entity& entity)
{
    const auto text = Text(conversion, entity);
    const auto pretty = Text(conversion, entity, Stringer::PrettyStringer());

    Survival survival;
    survival.Apply(entity);
    // What is lost may leave keys behind that are there twice.
    const auto parsing = survival.ChangesText() ? Parsing::Default : Parsing::Strict;
    const auto document = Parse(text, parsing);
    Check(document.has_value(), "what is written parses", text);
    Check(document == Parse(pretty, parsing), "the indented form is the same document", text, pretty);

    Entity again{};
    const auto result = conversion.read(*document, again);
    Check(result, "what is written can be read", text, Message(result));
    const auto secondText = Text(conversion, again);
    Check(AreSame(again, entity), "what is written and read is equal", text, secondText);
    Check(secondText == Text(conversion, entity), "what is written and read is written alike", text, secondText);
    Check(survival.ChangesText() || secondText == text, "the second text is the first", text, secondText);
}

/// `read` may differ from the conversion's own way to read, which is used to read what was written.
template <typename Entity>
void Exercise(const Conversion<Entity>& conversion, Result (*read)(const Json::Value&, Entity&),
              const Json::Value& json, bool isFilled)
{
    auto entity = Target<Entity>(isFilled);
    const auto result = read(json, entity);
    auto other = Target<Entity>(isFilled);
    Check(Message(read(json, other)) == Message(result) && AreSame(entity, other), "reading is repeatable");
    if constexpr (std::is_same_v<Entity, std::unique_ptr<Boundary>>)
        if (entity == nullptr)
            return;
    RoundTrip(conversion, entity);
}

template <typename Entity>
void Exercise(const Conversion<Entity>& conversion, const Json::Value& json, bool isFilled)
{
    Exercise(conversion, conversion.read, json, isFilled);
}

/// A channel of one kind, as whose reader the reader of both kinds must work.
template <typename Channel>
void ExerciseAsMediaIO(const Conversion<Channel>& conversion, const char* type, const Json::Value& json, bool isFilled)
{
    constexpr auto any = channelConversion<Channel>;
    Exercise(any, json, isFilled);
    if (!json.isObject() || json["_type"] != type)
        return;
    auto channel = Target<Channel>(isFilled);
    const auto result = any.read(json, channel);
    auto ofKind = Target<Channel>(isFilled);
    Check(Message(conversion.read(json, ofKind)) == Message(result), "both readers give the same result");
    Check(channel == ofKind && Text(any, channel) == Text(conversion, ofKind), "both readers read the same");
}

bool EndsProcess(const Json::Value& json, DocumentKind kind)
{
    return FirstFatal(InspectDocument(json, kind)) != nullptr;
}

Json::Value WithType(Json::Value json, const char* type)
{
    if (json.isObject())
        json["_type"] = type;
    return json;
}

} // namespace

/// Every reader on any document, into entities that are empty or already hold data; then the way back.
///
/// The first byte says which reader, the second how to parse and into what; the text follows.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const auto reader = input.Byte();
    const auto flags = input.Byte();
    const auto json = Parse(input.Rest(), static_cast<Parsing>(flags % 3));
    if (!json)
        return 0;
    const bool isFilled = (flags & 4U) != 0;

    const Conversion<MediaInput> recorder{Read<JsonToMediaInputConverter>, Write<MediaInputToJsonConverter>};
    const Conversion<MediaOutput> player{Read<JsonToMediaOutputConverter>, Write<MediaOutputToJsonConverter>};
    const Conversion<SequenceOutput::AssetBlockOutput> block{
        [](const Json::Value& value, auto& entity)
        { return JsonToSequenceOutputConverter().ToAssetBlockOutput(value, entity); },
        [](const auto& entity, Stringer& stringer)
        { return SequenceOutputToJsonConverter().AppendAssetBlockOutput(stringer, entity); }};
    constexpr auto boundary = boundaryConversion;
    const Conversion<SharedReference<MediaAsset>> reference{
        [](const Json::Value& value, auto& entity)
        {
            return JsonToSharedReference<MediaAsset>("MediaAssetRef", "mediaAsset",
                                                     std::make_shared<JsonToMediaAssetConverter>())
                .To(value, entity);
        },
        [](const auto& entity, Stringer& stringer)
        {
            return SharedReferenceToJson<MediaAsset, false>("MediaAssetRef", "mediaAsset",
                                                            std::make_shared<MediaAssetToJsonConverter>())
                .To(entity, stringer);
        }};

    switch (reader % 18)
    {
    case 0:
        ExerciseAsMediaIO(recorder, "MediaInput", *json, isFilled);
        break;
    case 1:
        if (!EndsProcess(WithType(*json, "MediaOutput"), DocumentKind::MediaOutput))
            ExerciseAsMediaIO(player, "MediaOutput", *json, isFilled);
        break;
    case 2:
        Exercise(recorder, *json, isFilled);
        break;
    case 3:
        if (!EndsProcess(WithType(*json, "MediaOutput"), DocumentKind::MediaOutput))
            Exercise(player, *json, isFilled);
        break;
    case 4:
        Exercise(
            recorder,
            +[](const Json::Value& value, MediaInput& channel)
            { return JsonToMediaInputConverter().Append(value, channel); },
            *json, isFilled);
        break;
    case 5:
        if (!EndsProcess(WithType(*json, "MediaOutput"), DocumentKind::MediaOutput))
            Exercise(
                player,
                +[](const Json::Value& value, MediaOutput& channel)
                { return JsonToMediaOutputConverter().Append(value, channel); },
                *json, isFilled);
        break;
    case 6:
        Exercise(
            player,
            +[](const Json::Value& value, MediaOutput& channel)
            { return JsonToMediaIOConverter().Append(value, channel); },
            *json, isFilled);
        break;
    case 7:
        if (!EndsProcess(*json, DocumentKind::Boundary))
            Exercise(boundary, *json, isFilled);
        break;
    case 8:
        Exercise(
            boundary,
            +[](const Json::Value& value, std::unique_ptr<Boundary>& entity)
            { return JsonToBoundaryConverter().AppendBoundaryAbsolute(value, entity); },
            *json, isFilled);
        break;
    case 9:
        if (!EndsProcess(WithType(*json, "BoundaryRelative"), DocumentKind::Boundary))
            Exercise(
                boundary,
                +[](const Json::Value& value, std::unique_ptr<Boundary>& entity)
                { return JsonToBoundaryConverter().AppendBoundaryRelative(value, entity); },
                *json, isFilled);
        break;
    case 10:
        Exercise(sequenceOutputConversion, *json, isFilled);
        break;
    case 11:
        Exercise(block, *json, isFilled);
        break;
    case 12:
        Exercise(speedConversion, *json, isFilled);
        break;
    case 13:
        Exercise(nodeConversion, *json, isFilled);
        break;
    case 14:
        Exercise(Conversion<MetadataProfileDictionary>{Read<JsonToMetadataProfileDictionaryConverter>,
                                                       Write<MetadataProfileDictionaryToJsonConverter>},
                 *json, isFilled);
        break;
    case 15:
        Exercise(Conversion<MediaAsset>{Read<JsonToMediaAssetConverter>, Write<MediaAssetToJsonConverter>}, *json,
                 isFilled);
        break;
    case 16:
        Exercise(Conversion<Sequence>{Read<JsonToSequenceConverter>, Write<SequenceToJsonConverter>}, *json, isFilled);
        break;
    default:
        Exercise(reference, *json, isFilled);
        Exercise(Conversion<TimePoint>{Read<JsonToTimePointConverter>, Write<TimePointToJsonObjectConverter>}, *json,
                 isFilled);
    }
    return 0;
}
