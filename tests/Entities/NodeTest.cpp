#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Nodes
{
namespace
{

TEST(Node, IsEqualFieldByField)
{
    const std::vector<std::string> gbe = {"10.0.0.1", "10.0.0.2"};
    const std::vector<Node> different = {
        Node({"n"}, 1, "host", "ip", gbe, "chassis", "revision", "version"),
        Node({"N"}, 1, "host", "ip", gbe, "chassis", "revision", "version"),
        Node({"n"}, 2, "host", "ip", gbe, "chassis", "revision", "version"),
        Node({"n"}, 1, "ip", "host", gbe, "chassis", "revision", "version"),
        Node({"n"}, 1, "host", "", gbe, "chassis", "revision", "version"),
        Node({"n"}, 1, "host", "ip", {"10.0.0.2", "10.0.0.1"}, "chassis", "revision", "version"),
        Node({"n"}, 1, "host", "ip", gbe, "", "revision", "version"),
        Node({"n"}, 1, "host", "ip", gbe, "chassis", "", "version"),
        Node({"n"}, 1, "host", "ip", gbe, "chassis", "revision", ""),
        Node(),
    };
    for (std::size_t i = 0; i < different.size(); ++i)
    {
        for (std::size_t j = 0; j < different.size(); ++j)
        {
            EXPECT_EQ(different[i] == different[j], i == j) << i << ' ' << j;
            EXPECT_EQ(different[i] != different[j], i != j) << i << ' ' << j;
        }
    }
    EXPECT_EQ(Node(), Node({}, Node::UndefinedSerialNumber(), "", "", {}, "", "", ""));
}

} // namespace
} // namespace Qiv::DataModel::Tarvonel::Nodes
