#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/JsonToSequenceConverter.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Details/ReadSequence.h>

namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
{

JsonToSequenceConverter::~JsonToSequenceConverter() = default;

Common::Serialization::Result JsonToSequenceConverter::To(const Common::Serialization::Json::JsonObject& json,
                                                          Sequence& sequence) const
{
    return Details::ReadSequence(json, sequence);
}

} // namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
