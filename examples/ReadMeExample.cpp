#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>

#include <iostream>
#include <string>

using namespace Qiv::DataModel::Tarvonel;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents;

int main()
{
    const std::string text = R"({"_type": "Node", "id": "n1", "hostName": "replay-3"})";

    const auto document = ReadAnyText(text);
    if (!document)
    {
        std::cerr << "line " << document.Position().line << ": " << document.ErrorMessage() << '\n';
        return 1;
    }
    if (const auto* const node = std::get_if<Nodes::Node>(&document.Entity()))
        std::cout << node->HostName() << " is ";
    std::cout << ToText(document.Entity()) << '\n';
}
