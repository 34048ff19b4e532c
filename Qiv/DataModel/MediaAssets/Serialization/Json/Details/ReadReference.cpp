#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadReference.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReferenceMembers.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
{

using BusinessEntityModel::BaseTypes::Identifier;
using Common::Serialization::Result;
using Common::Serialization::Json::Details::keyOf;
using Common::Serialization::Json::Details::ValueView;

Result ReadReferenceParts(ValueView json, std::string_view tag, std::string_view embeddedKey, ReferenceParts& parts)
{
    using Form = AnyReferenceForm;

    ReferenceParts found;
    ValueView type;
    const auto size = json.VisitMembers(
        [&](std::string_view name, ValueView member)
        {
            if (name == keyOf<Form::type>)
                type = member;
            if (name == keyOf<Form::id>)
                found.id = member;
            if (name == embeddedKey)
                found.embedded = member;
        });
    if (type.Text().value_or(tag) != tag)
        return Form::badTypeMessage;

    const bool hasIdAlone = size == 1 || (size == 2 && !type.IsNull());
    if (hasIdAlone && !found.id.IsNull())
    {
        if (found.id.IsArray() || found.id.IsObject())
            return Form::badFormatMessage;
        parts = {found.id, {}};
        return {};
    }
    if (!found.embedded.IsObject())
        return Form::badFormatMessage;
    parts = {{}, found.embedded};
    return {};
}

Identifier IdentifierOf(ValueView scalar)
{
    const auto text = scalar.Text();
    return text ? Identifier(*text) : Identifier(scalar.ScalarText());
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
