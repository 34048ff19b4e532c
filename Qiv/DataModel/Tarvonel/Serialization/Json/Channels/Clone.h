#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>

#include <memory>

/// Channels of either kind as values.
namespace Qiv::DataModel::Tarvonel::Serialization::Json::Channels
{

/// A copy of a recorder or player channel with metadata profiles and boundaries of its own: nothing that a reader or
/// `SetMetadataValue` changes in the one is seen in the other. Media assets and sequences that the channel refers to
/// are entities of their own and stay shared, as with every copy; readers replace them and never change them.
///
/// Of a channel of a class derived from `MediaInput` or `MediaOutput` it is the `MediaInput` or `MediaOutput` in it.
/// Throws std::invalid_argument with the writers' text for a channel of another mode.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::unique_ptr<Tarvonel::MediaIOs::MediaIO>
Clone(const Tarvonel::MediaIOs::MediaIO& channel);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Channels
