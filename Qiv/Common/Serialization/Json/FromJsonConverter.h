#pragma once

#include <Qiv/Common/Serialization/Converter.h>
#include <Qiv/Common/Serialization/Json/JsonObject.h>

namespace Qiv::Common::Serialization::Json
{

/// The base of every reader: fills or updates a `T` from a parsed JSON value.
///
/// Readers take members in a fixed order and apply each at once. Members that are absent, null or of another JSON type
/// are skipped unless the reader says otherwise, and leave their field as it is. After a failure the members before
/// the failing one stay applied.
template <typename T>
class QIV_COMMON_SERIALIZATION_EXPORT FromJsonConverter : public Converter<JsonObject, T>
{
};

} // namespace Qiv::Common::Serialization::Json
