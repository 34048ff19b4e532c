#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/EditorialMetadata.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The metadata of a channel as documents have them: one flat list of keys with their values, whatever profiles they
/// belong to.
///
///     for (const auto& [key, value] : MetadataValues(channel.Metadata()))
///         std::cout << key << " = " << value << '\n';
///     SetMetadataValue(channel.Metadata(), "production.camera.lens", "86x");
///
/// What stands before the last dot of a key is the name of its profile. The operator profile has the keys
/// "qiv.peloperator.serverId", unless it is 0, and "qiv.peloperator.index", unless that is negative; their values are
/// decimal numbers.
namespace Qiv::DataModel::Tarvonel::Serialization::Json::Channels
{

/// All keys with their values, in the order in which writers write them. Profiles of foreign kinds have none.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::vector<std::pair<std::string, std::string>>
MetadataValues(const BusinessEntityModel::BaseTypes::EditorialMetadata& metadata);

/// The value of a key; nothing when there is none.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::optional<std::string>
MetadataValue(const BusinessEntityModel::BaseTypes::EditorialMetadata& metadata, std::string_view key);

/// Sets the value of a key, whose profile is made when it is not there yet. A profile that is shared with a copy of the
/// channel, or held by anybody else, is replaced by a changed clone and stays as it is for them.
///
/// Throws std::invalid_argument, and changes nothing, for what no reader would take: a key without a dot; another key
/// of a profile whose name begins with "qiv.peloperator"; a server identifier that is no positive multiple of 10, or an
/// index that is no whole number of 32 bits; and for a key whose profile is of a foreign kind. Any other text is
/// stored; writers cut it at its first NUL.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT void
SetMetadataValue(BusinessEntityModel::BaseTypes::EditorialMetadata& metadata, std::string_view key,
                 std::string_view value);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Channels
