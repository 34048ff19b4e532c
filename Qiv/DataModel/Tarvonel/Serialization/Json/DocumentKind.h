#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>

#include <optional>
#include <string_view>
#include <type_traits>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// The kinds of document that stand on their own.
enum class DocumentKind
{
    MediaInput,
    MediaOutput,
    Node,
    SequenceOutput,
    Speed,
    Boundary, ///< "BoundaryAbsolute" or "BoundaryRelative"
};

/// The kind that the document's "_type" names; nothing when it names none, and for a value that is no object.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::optional<DocumentKind>
KindOf(const Common::Serialization::Json::JsonObject& document) noexcept;

/// The "id" of a channel or a node. Empty when the document has none or an empty one, when it is no string, and for
/// documents of other kinds. It lives as long as `document` is left alone.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::string_view
IdOf(const Common::Serialization::Json::JsonObject& document) noexcept;
std::string_view IdOf(Common::Serialization::Json::JsonObject&& document) = delete;

/// The name of the kind, for example "MediaInput"; of a boundary "Boundary".
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::string_view ToString(DocumentKind kind) noexcept;

/// Lets a function be declared as deleted for texts. jsoncpp makes a `Json::Value` of a text without being asked: a
/// JSON string, which is no document, whatever stands in it. `ParseText` parses it.
template <typename Text, typename Type = void>
using ForText = std::enable_if_t<std::is_convertible_v<const Text&, std::string_view>, Type>;

template <typename Text>
ForText<Text> KindOf(const Text& text) = delete;
template <typename Text>
ForText<Text> IdOf(const Text& text) = delete;

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
