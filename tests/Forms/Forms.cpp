#include <Converters/ModelGenerator.h>
#include <Entities.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Details/SequenceForm.h>
#include <Qiv/Common/Serialization/Json/Details/DurationForm.h>
#include <Qiv/Common/Serialization/Json/Details/TimePointForm.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/MediaAssetForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/AssetBlockForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/BoundaryForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/MediaAssetReferenceForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/OperatorProfileForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceOutputForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceReferenceForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SpeedForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/Details/NodeForm.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

/// Prints for check_forms.py which members, types and texts the forms have, and the documents in which they should
/// occur.
namespace Qiv::Tests
{
namespace
{

using namespace Common::Serialization::Json::Details;
using namespace DataModel::Tarvonel::Serialization::MediaIOs::Json::Details;
using BusinessEntityModel::Edits::Serialization::Json::Details::SequenceForm;
using DataModel::MediaAssets::Serialization::Json::Details::MediaAssetForm;
using DataModel::Tarvonel::Serialization::Nodes::Json::Details::NodeForm;
using JsonValue = ::Json::Value;

template <typename Enumeration, std::int32_t first = 0>
JsonValue Texts()
{
    JsonValue texts(::Json::arrayValue);
    Enumeration value{};
    for (auto i = first; FromText(ToString(Enumeration{i}), value) && value == Enumeration{i}; ++i)
        texts.append(ToString(value));
    return texts;
}

JsonValue Enumerators()
{
    JsonValue texts;
    texts["globalLoopMode"] = Texts<PlayingLoopMode>();
    texts["origin"] = Texts<BoundaryOrigin, 1>(); // without Absolute, with which the reader ends the process
    texts["playingStatus"] = Texts<PlayingStatus>();
    texts["primaryTimecodeType"] = Texts<TimecodePrimary>();
    texts["recordingStatus"] = Texts<RecordingStatus>();
    return texts;
}

/// The types and texts of an object's members by their keys.
template <typename TForm, std::size_t... counts>
JsonValue Members(std::string_view tag, const FormMembers<TForm, counts>&... lists)
{
    static const auto enumerators = Enumerators();
    JsonValue members;
    const auto add = [&](const auto* member)
    {
        const std::string key(member->key);
        const std::map<JsonType, const char*> types = {
            {JsonType::Text, "string"},     {JsonType::Nanoseconds, "string"}, {JsonType::Integer, "integer"},
            {JsonType::Boolean, "boolean"}, {JsonType::Array, "array"},        {JsonType::Object, "object"},
            {JsonType::Any, "any"}};
        members[key]["type"] = types.at(member->type);
        members[key]["texts"] = enumerators.get(key, ::Json::arrayValue);
        if (key == typeKey)
            members[key]["texts"].append(std::string(tag));
    };
    (std::for_each(lists.begin(), lists.end(), add), ...);
    return members;
}

template <typename Form>
void Add(JsonValue& forms)
{
    forms[std::string(Form::tag)] = Members(Form::tag, Form::members);
}

/// The forms by the texts of "_type"; metadata have none.
JsonValue Forms()
{
    using Channel = ChannelForm;
    constexpr auto type = Channel::ListOf(Channel::type);
    constexpr auto boundaryType = BoundaryForm::ListOf(BoundaryForm::type);
    JsonValue forms;
    Add<DurationForm>(forms);
    Add<TimePointForm>(forms);
    Add<MediaAssetForm>(forms);
    Add<MediaAssetReferenceForm>(forms);
    Add<SequenceForm>(forms);
    Add<SequenceReferenceForm>(forms);
    Add<SpeedForm>(forms);
    Add<AssetBlockForm>(forms);
    Add<SequenceOutputForm>(forms);
    Add<NodeForm>(forms);
    forms["Metadata"] = Members("", OperatorProfileForm::members);
    forms["BoundaryAbsolute"] = Members(BoundaryForm::absoluteTag, boundaryType, BoundaryForm::absolute);
    forms["BoundaryRelative"] = Members(BoundaryForm::relativeTag, boundaryType, BoundaryForm::relative);
    forms["MediaInput"] =
        Members(Channel::recorderTag, type, Channel::common, Channel::ofEitherKind, Channel::recorder);
    forms["MediaOutput"] = Members(Channel::playerTag, type, Channel::common, Channel::ofEitherKind, Channel::player);
    return forms;
}

/// Whether Survival knows each text in an entity: of those that are read here, writing loses a part.
template <typename Entity>
bool Survives(const std::string& document)
{
    const std::function<void(JsonValue&)> spoil = [&](JsonValue& value)
    {
        for (auto member = value.begin(); member != value.end(); ++member)
            if (member->isString() && member.name() != typeKey && member.name() != "value")
                *member = std::string("\xFF\0x", 3);
            else
                spoil(*member);
    };
    auto json = Parse(document);
    spoil(json);
    auto entity = FromText<Entity>(json.toStyledString());
    const auto written = Written(entity);
    Fuzz::Survival().Apply(entity);
    return FromText<Entity>(written) == entity;
}

template <typename Entity>
void AddDocuments(JsonValue& documents, const std::string& full)
{
    documents["tests/cases/documents.json"].append(Parse(full));
    Entity entity{};
    Fuzz::Fill(entity);
    documents["Fill in fuzz/Entities.cpp, as written"].append(Parse(Written(entity)));
    const auto tag = Parse(full)["_type"].asString();
    if (!Survives<Entity>(full))
        std::cerr << "Survival in fuzz/Entities.cpp does not know all texts of " << tag << '\n';
}

} // namespace
} // namespace Qiv::Tests

int main()
{
    using namespace Qiv::Tests;
    JsonValue told;
    told["forms"] = Forms();
    auto& documents = told["documents"];
    AddDocuments<MediaInput>(documents, fullInput);
    AddDocuments<MediaOutput>(documents, fullOutput);
    AddDocuments<Node>(documents, fullNode);
    ModelGenerator generator(3);
    for (int i = 0; i < 300; ++i)
        for (const auto* const rule : {"MediaInput", "MediaOutput", "Node", "SequenceOutput", "Speed", "Boundary"})
            documents["the rules of generated documents"].append(Parse(generator.Document(rule)));
    std::cout << told.toStyledString();
}
