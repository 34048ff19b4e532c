#include <Qiv/DataModel/MediaAssets/Serialization/Json/ReferenceForm.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

using namespace Common::Serialization::Json;
using BusinessEntityModel::BaseTypes::Identifier;
using Common::Serialization::Result;

Result BadReferenceFormat()
{
    return "Bad format";
}

Result ReadReferenceForm(const JsonObject& json, std::string_view type, std::string_view embeddedProperty,
                         ReferenceForm& form)
{
    ReferenceForm found;
    const JsonObject* foundType = nullptr;
    const auto size = VisitMembers(json,
                                   [&](std::string_view name, const auto& member)
                                   {
                                       if (name == "_type")
                                           foundType = &*member;
                                       if (name == "id")
                                           found.id = &*member;
                                       if (name == embeddedProperty)
                                           found.embedded = &*member;
                                   });
    if (IfText(foundType).value_or(type) != type)
        return "Bad _type";

    const bool hasIdAlone = size == 1 || (size == 2 && IfNotNull(foundType) != nullptr);
    if (hasIdAlone && IfNotNull(found.id) != nullptr)
    {
        if (found.id->type() == ::Json::arrayValue || found.id->type() == ::Json::objectValue)
            return BadReferenceFormat();
        form = {found.id, nullptr};
        return {};
    }
    if (IfType(found.embedded, ::Json::objectValue) == nullptr)
        return BadReferenceFormat();
    form = {nullptr, found.embedded};
    return {};
}

Identifier IdentifierOf(const JsonObject& scalar)
{
    const auto text = IfText(&scalar);
    return text ? Identifier(*text) : Identifier(scalar.asString());
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
