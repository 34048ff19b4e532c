// Stands for a program outside this tree: takes a node from JSON and back, with the installed package alone.
#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/JsonToNodeConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>

#include <json/json.h>

#include <iostream>
#include <sstream>
#include <string>

int main()
{
    namespace Converters = Qiv::DataModel::Tarvonel::Serialization::Nodes::Json;
    const std::string text = R"({"_type":"Node","id":"n1","serialNumber":7,"gbeIpAddresses":["10.0.0.1","10.0.0.2"]})";
    Json::Value json;
    std::istringstream(text) >> json;

    Qiv::DataModel::Tarvonel::Nodes::Node node;
    Qiv::Common::Serialization::Json::Stringer out;
    if (!Converters::JsonToNodeConverter().To(json, node) || !Converters::NodeToJsonConverter().To(node, out) ||
        out.ToString() != text)
    {
        std::cerr << "the node came back as " << out.ToString() << '\n';
        return 1;
    }
    return Converters::JsonToNodeConverter().To(Json::Value(), node) ? 1 : 0;
}
