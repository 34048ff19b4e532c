#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>

#include <variant>

/// Documents of every kind, for callers who do not know the kind before.
namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

/// The entity of any document that stands on its own:
///
///     if (const auto* node = std::get_if<Node>(&entity))
///         ...
///
/// A value; as with channels themselves, a copy shares the metadata profiles and what the entity refers to.
using AnyEntity = std::variant<Tarvonel::MediaIOs::MediaInput, Tarvonel::MediaIOs::MediaOutput, Tarvonel::Nodes::Node,
                               Tarvonel::MediaIOs::SequenceOutput, Tarvonel::MediaIOs::Speed,
                               Tarvonel::MediaIOs::BoundaryAbsolute, Tarvonel::MediaIOs::BoundaryRelative>;

// Those of documents, so that their namesakes below do not hide them.
using Json::IdOf;
using Json::KindOf;

/// Throws std::bad_variant_access for an entity that has lost its value to an exception.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT DocumentKind KindOf(const AnyEntity& entity);

/// The identifier of a channel or a node; empty for entities of other kinds.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT const BusinessEntityModel::BaseTypes::Identifier&
IdOf(const AnyEntity& entity) noexcept;

/// The recorder or player channel in it; null for entities of other kinds.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT const Tarvonel::MediaIOs::MediaIO*
ChannelOf(const AnyEntity& entity) noexcept;
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Tarvonel::MediaIOs::MediaIO* ChannelOf(AnyEntity& entity) noexcept;

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
