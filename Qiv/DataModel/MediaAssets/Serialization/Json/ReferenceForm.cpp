#include <Qiv/DataModel/MediaAssets/Serialization/Json/ReferenceForm.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadReference.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReferenceMembers.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

using Common::Serialization::Result;

void AppendReferenceMembers(Common::Serialization::Json::Stringer& stringer, const std::string& type,
                            const BusinessEntityModel::BaseTypes::Identifier& id)
{
    using Common::Serialization::Json::Details::keyOf;
    using Form = Details::AnyReferenceForm;

    stringer.Member(keyOf<Form::type>, type.c_str());
    stringer.Member(keyOf<Form::id>, id.Value().c_str());
}

Result BadReferenceFormat()
{
    return Details::AnyReferenceForm::badFormatMessage;
}

Result ReadReferenceForm(const Common::Serialization::Json::JsonObject& json, std::string_view type,
                         std::string_view embeddedProperty, ReferenceForm& form)
{
    Details::ReferenceParts parts;
    if (auto result = Details::ReadReferenceParts(json, type, embeddedProperty, parts); !result)
        return result;
    if (parts.id)
        form = {nullptr, Details::IdentifierOf(parts.id)};
    else
        form = {parts.embedded.Tree(), {}};
    return {};
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
