#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/Details/ReadNode.h>

#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/Details/NodeForm.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json::Details
{

using namespace Common::Serialization::Json::Details;
using BusinessEntityModel::BaseTypes::Identifier;
using Common::Serialization::Result;
using Tarvonel::Nodes::Node;

namespace
{

std::string TextOrEmpty(std::optional<std::string_view> text)
{
    return std::string(text.value_or(std::string_view()));
}

std::vector<std::string> TextsOf(ValueView array)
{
    std::vector<std::string> texts;
    array.VisitElements(
        [&](ValueView element, const auto&)
        {
            if (const auto text = element.Text())
                texts.emplace_back(*text);
        });
    return texts;
}

} // namespace

Result ReadNode(ValueView json, Node& node)
{
    using Form = NodeForm;

    const KnownMembers<Form> members(json);
    if (auto result = members.CheckShape(); !result)
        return result;
    const auto id = members.Get<Form::id>();
    if (!id)
        return Form::withoutIdMessage;

    node = Node(Identifier(*id), members.Get<Form::serialNumber>().value_or(Node::UndefinedSerialNumber()),
                TextOrEmpty(members.Get<Form::hostName>()), TextOrEmpty(members.Get<Form::ipAddress>()),
                TextsOf(members.Get<Form::gbeIpAddresses>()), TextOrEmpty(members.Get<Form::chassis>()),
                TextOrEmpty(members.Get<Form::hardwareRevision>()), TextOrEmpty(members.Get<Form::tarvonelVersion>()));
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json::Details
