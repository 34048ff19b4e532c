#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>

#include <optional>

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

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
