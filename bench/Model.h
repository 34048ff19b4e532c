#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>

/// The entities that all benchmarks convert.
namespace Bench
{

using Qiv::DataModel::Tarvonel::MediaIOs::MediaInput;
using Qiv::DataModel::Tarvonel::MediaIOs::MediaOutput;
using Qiv::DataModel::Tarvonel::Nodes::Node;

MediaInput SmallMediaInput();
MediaInput FullMediaInput();
MediaOutput FullMediaOutput();
Node FullNode();

} // namespace Bench
