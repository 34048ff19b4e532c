#include <Qiv/DataModel/MediaAssets/Serialization/Json/ReferenceForm.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>

#include <array>
#include <string>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

using namespace Common::Serialization::Json;
using BusinessEntityModel::BaseTypes::Identifier;
using Common::Serialization::Result;

namespace
{

struct Keys
{
    enum class Index
    {
        Type,
        Id
    };
    static constexpr std::array<std::string_view, 2> names{"_type", "id"};
};
using Key = Keys::Index;

} // namespace

Result BadReferenceFormat()
{
    return "Bad format";
}

Result ReadReferenceForm(const JsonObject& json, std::string_view type, std::string_view embeddedProperty,
                         ReferenceForm& form)
{
    const KnownMembers<Keys> members(json);
    const auto typeText = members.Text(Key::Type);
    if (typeText.value_or(type) != type)
        return "Bad _type";

    const auto* const id = members.Any(Key::Id);
    const bool hasIdAlone =
        members.Size() == 1 || (members.Size() == 2 && (typeText || members.Any(Key::Type) != nullptr));
    if (id != nullptr && hasIdAlone)
    {
        if (const auto text = IfText(id))
            form.id = Identifier(*text);
        else if (id->type() == ::Json::arrayValue || id->type() == ::Json::objectValue)
            return BadReferenceFormat();
        else
            form.id = Identifier(id->asString());
        form.embedded = nullptr;
        return {};
    }

    const auto* const embedded = IfType(FindMember(json, embeddedProperty), ::Json::objectValue);
    if (embedded == nullptr)
        return BadReferenceFormat();
    form.id = Identifier();
    form.embedded = embedded;
    return {};
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
