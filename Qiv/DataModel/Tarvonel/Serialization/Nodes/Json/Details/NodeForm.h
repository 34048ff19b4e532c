#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// A server machine.
struct NodeForm : JsonForm<NodeForm>
{
    static constexpr std::string_view tag = "Node";
    static constexpr const char* emptyMessage = "Node is null";
    static constexpr const char* withoutIdMessage = "Node has no identifier (required)";

    static constexpr Member id{"id", JsonType::Text};
    static constexpr Member serialNumber{"serialNumber", JsonType::Integer};
    static constexpr Member hostName{"hostName", JsonType::Text};
    static constexpr Member ipAddress{"ipAddress", JsonType::Text};
    static constexpr Member gbeIpAddresses{"gbeIpAddresses", JsonType::Array};
    static constexpr Member chassis{"chassis", JsonType::Text};
    static constexpr Member hardwareRevision{"hardwareRevision", JsonType::Text};
    static constexpr Member tarvonelVersion{"tarvonelVersion", JsonType::Text};

    static constexpr auto members =
        ListOf(type, id, serialNumber, hostName, ipAddress, gbeIpAddresses, chassis, hardwareRevision, tarvonelVersion);
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json::Details
