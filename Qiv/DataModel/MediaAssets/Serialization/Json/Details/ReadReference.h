#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>

#include <memory>
#include <string_view>
#include <utility>

/// What JsonToSharedReference does.
namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
{

/// Which of its two forms a reference has: there is one of the two members.
struct ReferenceParts
{
    /// The identifier of a reference by identifier only, see `IdentifierOf`.
    Common::Serialization::Json::Details::ValueView id;
    /// The embedded object.
    Common::Serialization::Json::Details::ValueView embedded;
};

/// Tells the form of a reference whose "_type" is `tag` and whose embedded object has the key `embeddedKey`.
/// Failures leave `parts` untouched: "Bad _type" or "Bad format" (neither form).
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result
ReadReferenceParts(Common::Serialization::Json::Details::ValueView json, std::string_view tag,
                   std::string_view embeddedKey, ReferenceParts& parts);

/// The identifier that a text, a number or a boolean stands for: jsoncpp's text of it.
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT BusinessEntityModel::BaseTypes::Identifier
IdentifierOf(Common::Serialization::Json::Details::ValueView scalar);

/// Reads a reference of the form `TForm` with the reader of the embedded object.
template <typename TForm, typename TEntity>
Common::Serialization::Result
ReadReference(Common::Serialization::Json::Details::ValueView json,
              Common::Serialization::Result (*readEmbedded)(Common::Serialization::Json::Details::ValueView, TEntity&),
              BusinessEntityModel::BaseTypes::SharedReference<TEntity>& reference)
{
    ReferenceParts parts;
    if (auto result = ReadReferenceParts(json, TForm::tag, TForm::embedded.key, parts); !result)
        return result;
    if (parts.id)
    {
        reference = IdentifierOf(parts.id);
        return {};
    }
    auto object = std::make_shared<TEntity>();
    if (auto result = readEmbedded(parts.embedded, *object); !result)
        return result;
    reference = BusinessEntityModel::BaseTypes::SharedReference<TEntity>(std::move(object));
    return {};
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
