#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/JsonToNodeConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>

#include <json/json.h>

#include <iostream>
#include <sstream>

int main()
{
    Json::Value json;
    std::istringstream(R"({"_type": "Node", "id": "n1", "hostName": "replay-3"})") >> json;

    using namespace Qiv::DataModel::Tarvonel;
    Nodes::Node node;
    if (const auto result = Serialization::Nodes::Json::JsonToNodeConverter().To(json, node); !result)
        std::cerr << result.ErrorMessage() << '\n';

    Qiv::Common::Serialization::Json::Stringer out;
    Serialization::Nodes::Json::NodeToJsonConverter().To(node, out);
    std::cout << node.HostName() << " is " << out.ToString() << '\n';
}
