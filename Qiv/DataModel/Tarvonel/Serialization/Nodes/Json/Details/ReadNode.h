#pragma once

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json::Details
{

/// What JsonToNodeConverter does.
Common::Serialization::Result ReadNode(Common::Serialization::Json::Details::ValueView json,
                                       Tarvonel::Nodes::Node& node);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Nodes::Json::Details
