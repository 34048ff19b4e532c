#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>

#include <tuple>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Nodes
{

Node::Node(const BusinessEntityModel::BaseTypes::Identifier& nodeId, std::int32_t serialNumber,
           const std::string& hostName, const std::string& ipAddress, const std::vector<std::string>& gbeIpAddresses,
           const std::string& chassis, const std::string& hardwareRevision, const std::string& tarvonelVersion)
    : nodeId_(nodeId),
      serialNumber_(serialNumber),
      hostName_(hostName),
      ipAddress_(ipAddress),
      gbeIpAddresses_(gbeIpAddresses),
      chassis_(chassis),
      hardwareRevision_(hardwareRevision),
      tarvonelVersion_(tarvonelVersion)
{
}

Node::Node(BusinessEntityModel::BaseTypes::Identifier&& nodeId, std::int32_t serialNumber, std::string&& hostName,
           std::string&& ipAddress, std::vector<std::string>&& gbeIpAddresses, std::string&& chassis,
           std::string&& hardwareRevision, std::string&& tarvonelVersion) noexcept
    : nodeId_(std::move(nodeId)),
      serialNumber_(serialNumber),
      hostName_(std::move(hostName)),
      ipAddress_(std::move(ipAddress)),
      gbeIpAddresses_(std::move(gbeIpAddresses)),
      chassis_(std::move(chassis)),
      hardwareRevision_(std::move(hardwareRevision)),
      tarvonelVersion_(std::move(tarvonelVersion))
{
}

bool Node::operator==(const Node& other) const noexcept
{
    const auto fields = [](const Node& node)
    {
        return std::tie(node.nodeId_, node.serialNumber_, node.hostName_, node.ipAddress_, node.gbeIpAddresses_,
                        node.chassis_, node.hardwareRevision_, node.tarvonelVersion_);
    };
    return fields(*this) == fields(other);
}

} // namespace Qiv::DataModel::Tarvonel::Nodes
