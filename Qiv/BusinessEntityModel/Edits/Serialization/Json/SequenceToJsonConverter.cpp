#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/SequenceToJsonConverter.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Details/SequenceForm.h>

namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
{

SequenceToJsonConverter::~SequenceToJsonConverter() = default;

Common::Serialization::Result SequenceToJsonConverter::To(const Sequence& sequence,
                                                          Common::Serialization::Json::Stringer& stringer) const
{
    using Common::Serialization::Json::Details::keyOf;
    using Form = Details::SequenceForm;

    const auto object = stringer.ObjectScope();
    stringer.Member(keyOf<Form::type>, Form::tag);
    stringer.Member(keyOf<Form::id>, sequence.Id().Value().c_str());
    if (!sequence.Name().empty())
        stringer.Member(keyOf<Form::name>, sequence.Name().c_str());
    return {};
}

} // namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
