#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>

#include <string>
#include <string_view>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

/// What JsonToSharedReference finds in the object of a reference, whatever the type of the entity that it refers to.
struct ReferenceForm
{
    /// The embedded object, which lives as long as the reference's; null for a reference by identifier only.
    const Common::Serialization::Json::JsonObject* embedded = nullptr;
    /// The identifier of a reference by identifier only.
    BusinessEntityModel::BaseTypes::Identifier id;
};

/// Tells the form of a reference whose "_type" is `type` and whose embedded object has the key `embeddedProperty`.
/// Failures leave `form` untouched: "Bad _type" or "Bad format" (neither form).
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result
ReadReferenceForm(const Common::Serialization::Json::JsonObject& json, std::string_view type,
                  std::string_view embeddedProperty, ReferenceForm& form);

/// Writes the members that every reference has: "_type" and "id".
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT void
AppendReferenceMembers(Common::Serialization::Json::Stringer& stringer, const std::string& type,
                       const BusinessEntityModel::BaseTypes::Identifier& id);

/// The failure "Bad format".
[[gnu::cold]] QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result BadReferenceFormat();

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
