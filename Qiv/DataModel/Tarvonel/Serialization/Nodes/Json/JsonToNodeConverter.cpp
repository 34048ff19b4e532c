#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/JsonToNodeConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>

#include <string>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
{

using namespace Common::Serialization::Json;
using BusinessEntityModel::BaseTypes::Identifier;
using Common::Serialization::Result;
using Tarvonel::Nodes::Node;

namespace
{

struct Keys
{
    enum class Index
    {
        Type,
        Chassis,
        GbeIpAddresses,
        HardwareRevision,
        HostName,
        Id,
        IpAddress,
        SerialNumber,
        TarvonelVersion
    };
    static constexpr std::array<std::string_view, 9> names{
        "_type", "chassis",   "gbeIpAddresses", "hardwareRevision", "hostName",
        "id",    "ipAddress", "serialNumber",   "tarvonelVersion"};
};
using Key = Keys::Index;

std::string TextOrEmpty(const KnownMembers<Keys>& members, Key key)
{
    return std::string(members.Text(key).value_or(std::string_view()));
}

std::vector<std::string> TextsOrEmpty(const KnownMembers<Keys>& members, Key key)
{
    std::vector<std::string> texts;
    if (const auto* array = members.Array(key))
    {
        for (const auto& element : *array)
            if (element.isString())
                texts.emplace_back(TextOf(element));
    }
    return texts;
}

} // namespace

JsonToNodeConverter::~JsonToNodeConverter() = default;

Result JsonToNodeConverter::To(const JsonObject& json, Node& node) const
{
    const KnownMembers<Keys> members(json);
    if (members.IsEmpty())
        return "Node is null";
    if (auto result = CheckType(members.Text(Key::Type), "Node"); !result)
        return result;
    const auto id = members.Text(Key::Id);
    if (!id)
        return "Node has no identifier (required)";

    node = Node(Identifier(*id), members.Int(Key::SerialNumber).value_or(Node::UndefinedSerialNumber()),
                TextOrEmpty(members, Key::HostName), TextOrEmpty(members, Key::IpAddress),
                TextsOrEmpty(members, Key::GbeIpAddresses), TextOrEmpty(members, Key::Chassis),
                TextOrEmpty(members, Key::HardwareRevision), TextOrEmpty(members, Key::TarvonelVersion));
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
