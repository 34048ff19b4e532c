#pragma once

#include <Qiv/Common/Serialization/Converter.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>

namespace Qiv::Common::Serialization::Json
{

/// The base of every writer: appends the JSON form of a `T` to a `Stringer`.
///
/// A writer that is called for the value of a key owes the `Stringer` exactly one value for that key, also when it
/// fails: its caller goes on to the next key or closes the object, and a key without value is misuse, which throws. The
/// library's own writers keep to it, and write an empty object for a nested writer that fails and does not.
/// Some writers are declared not to throw: call them where the `Stringer` may take a value, or its exception ends the
/// process. Whatever a writer opens it closes, on failure too. Text is written as a null-terminated string: what
/// follows a NUL character inside it is not written.
template <typename T>
class QIV_COMMON_SERIALIZATION_EXPORT ToJsonConverter : public Converter<T, Stringer>
{
};

/// Has `writer` write the value of the key that has just been written, and returns its result. When it fails without
/// having written a value, an empty object takes the value's place, so that the text stays well-formed.
template <typename T>
Result AppendNested(Stringer& stringer, const ToJsonConverter<T>& writer, const T& value)
{
    auto result = writer.To(value, stringer);
    if (!result && stringer.AwaitsValue())
        stringer.Object().CloseObject();
    return result;
}

} // namespace Qiv::Common::Serialization::Json
