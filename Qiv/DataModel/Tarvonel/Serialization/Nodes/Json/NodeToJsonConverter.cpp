#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
{

using Common::Serialization::Result;
using Common::Serialization::Json::Stringer;
using Tarvonel::Nodes::Node;

namespace
{

void AppendUnlessEmpty(Stringer& stringer, const char* key, const std::string& text)
{
    if (!text.empty())
        stringer.Member(key, text.c_str());
}

} // namespace

NodeToJsonConverter::~NodeToJsonConverter() = default;

Result NodeToJsonConverter::To(const Node& node, Stringer& stringer) const
{
    stringer.Object();
    auto result = AppendNode(stringer, node);
    stringer.CloseObject();
    return result;
}

Result NodeToJsonConverter::AppendNode(Stringer& stringer, const Node& node) const
{
    stringer.Member("_type", "Node");
    stringer.Member("id", node.NodeId().Value().c_str());
    if (node.SerialNumber() != Node::UndefinedSerialNumber())
        stringer.Key("serialNumber").Value(node.SerialNumber());
    AppendUnlessEmpty(stringer, "hostName", node.HostName());
    AppendUnlessEmpty(stringer, "ipAddress", node.IpAddress());
    if (!node.GbeIpAddresses().empty())
    {
        stringer.Key("gbeIpAddresses").Array();
        for (const auto& address : node.GbeIpAddresses())
            stringer.Value(address.c_str());
        stringer.CloseArray();
    }
    AppendUnlessEmpty(stringer, "chassis", node.Chassis());
    AppendUnlessEmpty(stringer, "hardwareRevision", node.HardwareRevision());
    AppendUnlessEmpty(stringer, "tarvonelVersion", node.TarvonelVersion());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
