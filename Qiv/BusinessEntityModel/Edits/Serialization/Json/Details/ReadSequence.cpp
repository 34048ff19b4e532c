#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Details/ReadSequence.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Details/SequenceForm.h>
#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>

namespace Qiv::BusinessEntityModel::Edits::Serialization::Json::Details
{

using namespace Common::Serialization::Json::Details;
using Common::Serialization::Result;

Result ReadSequence(ValueView json, Sequence& sequence)
{
    using Form = SequenceForm;

    const KnownMembers<Form> members(json);
    if (auto result = members.CheckShape(); !result)
        return result;

    if (const auto id = members.Get<Form::id>())
        sequence.Id(BaseTypes::Identifier(*id));

    if (const auto name = members.Get<Form::name>())
        sequence.Name(BaseTypes::Utf8String(*name));

    return {};
}

} // namespace Qiv::BusinessEntityModel::Edits::Serialization::Json::Details
