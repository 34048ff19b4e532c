#pragma once

#include <Qiv/Common/Serialization/Converter.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>

namespace Qiv::Common::Serialization::Json
{

/// The base of every writer: appends the JSON form of a `T` to a `Stringer`.
///
/// A writer that is called for the value of a key owes the `Stringer` exactly one value for that key, also when it
/// fails: its caller goes on to the next key or closes the object, and a key without value is misuse, which throws.
/// Whatever a writer opens it closes, on failure too. Text is written as a null-terminated string: what follows a NUL
/// character inside it is not written.
template <typename T>
class QIV_COMMON_SERIALIZATION_EXPORT ToJsonConverter : public Converter<T, Stringer>
{
};

} // namespace Qiv::Common::Serialization::Json
