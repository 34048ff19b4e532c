#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>

#include <string_view>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

/// What JsonToSharedReference finds in the object of a reference, whatever the type of the entity that it refers to.
struct ReferenceForm
{
    /// The identifier of a reference by identifier only; empty in the other form.
    BusinessEntityModel::BaseTypes::Identifier id;
    /// The embedded object; null for a reference by identifier only. It lives as long as the object of the reference.
    const Common::Serialization::Json::JsonObject* embedded = nullptr;
};

/// Tells the form of a reference whose "_type" is `type` and whose embedded object has the key `embeddedProperty`.
/// Failures leave `form` untouched: "Bad _type" or "Bad format" (neither form).
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result
ReadReferenceForm(const Common::Serialization::Json::JsonObject& json, std::string_view type,
                  std::string_view embeddedProperty, ReferenceForm& form);

/// The failure "Bad format".
[[gnu::cold]] QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result BadReferenceFormat();

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
