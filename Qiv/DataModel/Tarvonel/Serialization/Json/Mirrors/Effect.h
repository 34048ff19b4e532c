#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>

#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
{

/// What a document has done to a mirror.
enum class Effect
{
    Created,   ///< the first of its identifier
    Changed,   ///< the entity shows something else than before
    Unchanged, ///< the document says nothing new
    Refused,   ///< nothing has been done, and the result tells why
};

/// "created", "changed", "unchanged" or "refused".
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::string_view ToString(Effect effect) noexcept;

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
