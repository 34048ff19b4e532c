#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>
#include <Qiv/Common/Serialization/Json/FromJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadTarget.h>

#include <memory>
#include <type_traits>
#include <utility>

/// Reading whole or not at all. The `To` of a reader merges member by member, and a failure leaves what came before it
/// applied. Here the target changes only when all of the document could be read:
///
///     MergeWhole(json, channel)     members that the document lacks keep their values
///     ReadSnapshot(json, channel)   members that the document lacks get their defaults
///
/// Both return the reader's own result. When they fail or throw, the target and everything that it shares with others
/// is as it was; only running out of memory while a result is put into its place can leave a mixture of old and new
/// members. After a snapshot, and after a merge of a document with an object as "metadata", a channel has metadata
/// profiles of its own, also where it shared them with other channels before, and these others keep theirs.
///
/// Documents that end the process with `To` do so here: ask InspectDocument first, or read with the functions of
/// ReadText.h, which do.
namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// A copy that shares nothing that a reader could change: with clones of the metadata profiles, or of a boundary.
template <typename Entity>
Entity IndependentCopy(const Entity& entity)
{
    if constexpr (std::is_same_v<Entity, BusinessEntityModel::BaseTypes::MetadataProfileDictionary>)
    {
        return entity.Clone();
    }
    else if constexpr (std::is_same_v<Entity, std::unique_ptr<Tarvonel::MediaIOs::Boundary>>)
    {
        return entity != nullptr ? entity->Clone() : nullptr;
    }
    else
    {
        auto copy = entity;
        if constexpr (std::is_base_of_v<Tarvonel::MediaIOs::MediaIO, Entity>)
            copy.Metadata() = entity.Metadata().Clone();
        return copy;
    }
}

/// The same of a channel of either kind; see `Channels::Clone`.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::unique_ptr<Tarvonel::MediaIOs::MediaIO>
IndependentCopy(const Tarvonel::MediaIOs::MediaIO& channel);

/// A default-constructed entity. A channel keeps its identifier: a snapshot that has none tells the state of a channel,
/// not that it has become another.
template <typename Entity>
Entity NewEntity(const Entity& entity)
{
    Entity created{};
    if constexpr (std::is_base_of_v<Tarvonel::MediaIOs::MediaIO, Entity>)
        created.Id(entity.Id());
    return created;
}

/// Whole reading with any reader, of any entity that can be copied.
template <typename Entity>
Common::Serialization::Result MergeWhole(const Common::Serialization::Json::FromJsonConverter<Entity>& reader,
                                         const Common::Serialization::Json::JsonObject& json, Entity& entity)
{
    auto copy = IndependentCopy(entity);
    auto result = reader.To(json, copy);
    if (result)
        entity = std::move(copy);
    return result;
}

/// Whole reading into a new entity, which then replaces `entity`; see NewEntity.
template <typename Entity>
Common::Serialization::Result ReadSnapshot(const Common::Serialization::Json::FromJsonConverter<Entity>& reader,
                                           const Common::Serialization::Json::JsonObject& json, Entity& entity)
{
    auto snapshot = NewEntity(entity);
    auto result = reader.To(json, snapshot);
    if (result)
        entity = std::move(snapshot);
    return result;
}

/// The same with the reader of each entity. Channels are read by `JsonToMediaIOConverter`, for which "_type" is
/// required and names the kind that the channel has. Of a channel of a class derived from `MediaInput` or
/// `MediaOutput`, the members that such a class adds stay as they are. Nodes and boundaries are replaced by every
/// reading; merging and reading a snapshot are the same for them.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
MergeWhole(const Common::Serialization::Json::JsonObject& json, ReadTarget target);
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Common::Serialization::Result
ReadSnapshot(const Common::Serialization::Json::JsonObject& json, ReadTarget target);

// MergeText and ReadSnapshotText read texts.
template <typename Text>
ForText<Text, Common::Serialization::Result> MergeWhole(const Text& text, ReadTarget target) = delete;
template <typename Text>
ForText<Text, Common::Serialization::Result> ReadSnapshot(const Text& text, ReadTarget target) = delete;

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
