#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>

#include <functional>
#include <memory>
#include <variant>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// An entity that a document is read into: a channel of either kind, a node, or a part of a channel that stands on its
/// own. Functions that take one are called with the entity itself: `MergeText(text, channel)`. The entity must outlive
/// the call.
using ReadTarget =
    std::variant<std::reference_wrapper<Tarvonel::MediaIOs::MediaIO>, std::reference_wrapper<Tarvonel::Nodes::Node>,
                 std::reference_wrapper<Tarvonel::MediaIOs::SequenceOutput>,
                 std::reference_wrapper<Tarvonel::MediaIOs::Speed>,
                 std::reference_wrapper<std::unique_ptr<Tarvonel::MediaIOs::Boundary>>>;

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
