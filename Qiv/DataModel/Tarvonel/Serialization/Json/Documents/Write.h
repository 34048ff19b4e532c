#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>
#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/AnyEntity.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

/// Writes an entity with the default writer of its kind and returns that writer's result. A writer closes what it opens
/// also when it fails, so that text stands in `stringer` then, too. Where no value may stand, `InvalidStringerState` is
/// thrown, for speeds and boundaries, too.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
Write(const Tarvonel::MediaIOs::MediaIO& channel, Common::Serialization::Json::Stringer& stringer);
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
Write(const Tarvonel::MediaIOs::SequenceOutput& sequenceOutput, Common::Serialization::Json::Stringer& stringer);
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
Write(const Tarvonel::MediaIOs::Speed& speed, Common::Serialization::Json::Stringer& stringer);
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
Write(const Tarvonel::MediaIOs::Boundary& boundary, Common::Serialization::Json::Stringer& stringer);
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
Write(const Tarvonel::Nodes::Node& node, Common::Serialization::Json::Stringer& stringer);
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
Write(const BusinessEntityModel::BaseTypes::MetadataProfileDictionary& metadata,
      Common::Serialization::Json::Stringer& stringer);
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
Write(const MediaAssets::MediaAsset& mediaAsset, Common::Serialization::Json::Stringer& stringer);
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
Write(const BusinessEntityModel::Edits::Sequence& sequence, Common::Serialization::Json::Stringer& stringer);
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
Write(const AnyEntity& entity, Common::Serialization::Json::Stringer& stringer);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
