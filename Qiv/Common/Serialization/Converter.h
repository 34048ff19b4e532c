#pragma once

#include <Qiv/Common/Serialization/Export.h>
#include <Qiv/Common/Serialization/Result.h>

namespace Qiv::Common::Serialization
{

/// The interface of everything that turns a `TFrom` into a `TTo`.
///
/// Converters hold no mutable state: one object serves any number of threads, as long as each thread has a target of
/// its own. An override of `To` hides the rvalue overload; bring it back with `using Base::To;`.
template <typename TFrom, typename TTo>
class QIV_COMMON_SERIALIZATION_EXPORT Converter
{
public:
    using FromType = TFrom;
    using ToType = TTo;

    virtual ~Converter() = default;

    /// Converts `from` into `to`. What `to` holds after a failure is the converter's own contract.
    virtual Result To(const FromType& from, ToType& to) const = 0;

    /// The same conversion for a temporary; `from` is never moved from.
    virtual Result To(FromType&& from, ToType& to) const
    {
        const FromType& source = from;
        return To(source, to);
    }

    /// Always the empty text: the returned `Result` is the only carrier of an error.
    virtual const char* GetLastConversionError() const { return ""; }

protected:
    Converter() = default;
    Converter(const Converter&) = default;
    Converter(Converter&&) noexcept = default;
    Converter& operator=(const Converter&) = default;
    Converter& operator=(Converter&&) noexcept = default;
};

} // namespace Qiv::Common::Serialization
