#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/JsonToNodeConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/Details/ReadNode.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
{

JsonToNodeConverter::~JsonToNodeConverter() = default;

Common::Serialization::Result JsonToNodeConverter::To(const Common::Serialization::Json::JsonObject& json,
                                                      Tarvonel::Nodes::Node& node) const
{
    return Details::ReadNode(json, node);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
