#pragma once

#include <Qiv/Common/Serialization/Json/ToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
{

/// Writes a server machine, in the form that `JsonToNodeConverter` reads: "_type" and "id" always, also an empty "id";
/// "serialNumber" unless it is -1, texts and the list unless they are empty. Always succeeds.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT NodeToJsonConverter
    : public Common::Serialization::Json::ToJsonConverter<Tarvonel::Nodes::Node>
{
public:
    ~NodeToJsonConverter() override;

    using ToJsonConverter::To;
    Common::Serialization::Result To(const Tarvonel::Nodes::Node& node,
                                     Common::Serialization::Json::Stringer& stringer) const override;

    /// Writes the members into an object that is already open.
    Common::Serialization::Result AppendNode(Common::Serialization::Json::Stringer& stringer,
                                             const Tarvonel::Nodes::Node& node) const;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
