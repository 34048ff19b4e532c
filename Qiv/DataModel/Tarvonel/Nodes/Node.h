#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/DataModel/Tarvonel/Export.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Nodes
{

/// One server machine of the replay system. Its fields are given at construction and change only by assigning a whole
/// node. A text, the list and the identifier are empty when unknown.
class QIV_DATAMODEL_TARVONEL_EXPORT Node
{
public:
    /// The serial number of a machine whose serial number is unknown.
    static constexpr std::int32_t UndefinedSerialNumber() noexcept { return -1; }

    /// A node of which nothing is known.
    Node() = default;
    Node(const BusinessEntityModel::BaseTypes::Identifier& nodeId, std::int32_t serialNumber,
         const std::string& hostName, const std::string& ipAddress, const std::vector<std::string>& gbeIpAddresses,
         const std::string& chassis, const std::string& hardwareRevision, const std::string& tarvonelVersion);
    /// The same for texts that are no longer needed elsewhere, which are moved.
    Node(BusinessEntityModel::BaseTypes::Identifier&& nodeId, std::int32_t serialNumber, std::string&& hostName,
         std::string&& ipAddress, std::vector<std::string>&& gbeIpAddresses, std::string&& chassis,
         std::string&& hardwareRevision, std::string&& tarvonelVersion) noexcept;

    /// Equal in every field, the order of the gigabit addresses included.
    bool operator==(const Node& other) const noexcept;
    bool operator!=(const Node& other) const noexcept { return !(*this == other); }

    const BusinessEntityModel::BaseTypes::Identifier& NodeId() const noexcept { return nodeId_; }
    std::int32_t SerialNumber() const noexcept { return serialNumber_; }
    /// The network host name.
    const std::string& HostName() const noexcept { return hostName_; }
    /// The main IP address in text form.
    const std::string& IpAddress() const noexcept { return ipAddress_; }
    /// The IP addresses of the gigabit Ethernet interfaces, in order.
    const std::vector<std::string>& GbeIpAddresses() const noexcept { return gbeIpAddresses_; }
    /// The chassis type, free text.
    const std::string& Chassis() const noexcept { return chassis_; }
    /// Free text.
    const std::string& HardwareRevision() const noexcept { return hardwareRevision_; }
    /// The version of the server software.
    const std::string& TarvonelVersion() const noexcept { return tarvonelVersion_; }

private:
    BusinessEntityModel::BaseTypes::Identifier nodeId_;
    std::int32_t serialNumber_ = -1;
    std::string hostName_;
    std::string ipAddress_;
    std::vector<std::string> gbeIpAddresses_;
    std::string chassis_;
    std::string hardwareRevision_;
    std::string tarvonelVersion_;
};

} // namespace Qiv::DataModel::Tarvonel::Nodes
