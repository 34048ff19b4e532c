#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/Details/NodeForm.h>

#include <string>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
{

using Common::Serialization::Result;
using Common::Serialization::Json::QuotedKey;
using Common::Serialization::Json::Stringer;
using Common::Serialization::Json::Details::keyOf;
using Tarvonel::Nodes::Node;

namespace
{

void AppendUnlessEmpty(Stringer& stringer, const QuotedKey& key, const std::string& text)
{
    if (!text.empty())
        stringer.Member(key, text.c_str());
}

} // namespace

NodeToJsonConverter::~NodeToJsonConverter() = default;

Result NodeToJsonConverter::To(const Node& node, Stringer& stringer) const
{
    const auto object = stringer.ObjectScope();
    return AppendNode(stringer, node);
}

Result NodeToJsonConverter::AppendNode(Stringer& stringer, const Node& node) const
{
    using Form = Details::NodeForm;

    stringer.Member(keyOf<Form::type>, Form::tag);
    stringer.Member(keyOf<Form::id>, node.NodeId().Value().c_str());
    if (node.SerialNumber() != Node::UndefinedSerialNumber())
        stringer.Key(keyOf<Form::serialNumber>).Value(node.SerialNumber());
    AppendUnlessEmpty(stringer, keyOf<Form::hostName>, node.HostName());
    AppendUnlessEmpty(stringer, keyOf<Form::ipAddress>, node.IpAddress());
    if (!node.GbeIpAddresses().empty())
    {
        stringer.Key(keyOf<Form::gbeIpAddresses>);
        const auto array = stringer.ArrayScope();
        for (const auto& address : node.GbeIpAddresses())
            stringer.Value(address.c_str());
    }
    AppendUnlessEmpty(stringer, keyOf<Form::chassis>, node.Chassis());
    AppendUnlessEmpty(stringer, keyOf<Form::hardwareRevision>, node.HardwareRevision());
    AppendUnlessEmpty(stringer, keyOf<Form::tarvonelVersion>, node.TarvonelVersion());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json
