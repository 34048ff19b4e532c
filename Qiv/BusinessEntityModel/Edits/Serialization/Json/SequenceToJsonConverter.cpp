#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/SequenceToJsonConverter.h>

namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
{

SequenceToJsonConverter::~SequenceToJsonConverter() = default;

Common::Serialization::Result SequenceToJsonConverter::To(const Sequence& sequence,
                                                          Common::Serialization::Json::Stringer& stringer) const
{
    stringer.Object();
    stringer.Member("_type", "Sequence");
    stringer.Member("id", sequence.Id().Value().c_str());
    if (!sequence.Name().empty())
        stringer.Member("name", sequence.Name().c_str());
    stringer.CloseObject();
    return {};
}

} // namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
