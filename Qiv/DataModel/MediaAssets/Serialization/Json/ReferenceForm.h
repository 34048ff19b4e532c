#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>

#include <string_view>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

/// What JsonToSharedReference finds in the object of a reference, whatever the type of the entity that it refers to:
/// one of the two members, which live as long as that object.
struct ReferenceForm
{
    using JsonObject = Common::Serialization::Json::JsonObject;

    /// The identifier of a reference by identifier only, see `IdentifierOf`.
    const JsonObject* id = nullptr;
    /// The embedded object.
    const JsonObject* embedded = nullptr;
};

/// Tells the form of a reference whose "_type" is `type` and whose embedded object has the key `embeddedProperty`.
/// Failures leave `form` untouched: "Bad _type" or "Bad format" (neither form).
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result
ReadReferenceForm(const Common::Serialization::Json::JsonObject& json, std::string_view type,
                  std::string_view embeddedProperty, ReferenceForm& form);

/// The identifier that a text, a number or a boolean stands for: jsoncpp's text of it.
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT BusinessEntityModel::BaseTypes::Identifier
IdentifierOf(const Common::Serialization::Json::JsonObject& scalar);

/// The failure "Bad format".
[[gnu::cold]] QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result BadReferenceFormat();

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
