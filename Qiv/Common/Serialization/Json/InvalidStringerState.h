#pragma once

#include <Qiv/Common/Serialization/Export.h>

#include <stdexcept>

namespace Qiv::Common::Serialization::Json
{

/// Thrown by a `Stringer` that is asked for something that would not give valid JSON, for example
/// "Stringer::Value: the open object awaits a key". Nothing has been written.
class QIV_COMMON_SERIALIZATION_EXPORT InvalidStringerState : public std::logic_error
{
public:
    using std::logic_error::logic_error;
    InvalidStringerState(const InvalidStringerState&) = default;
    InvalidStringerState(InvalidStringerState&&) = default;
    InvalidStringerState& operator=(const InvalidStringerState&) = default;
    InvalidStringerState& operator=(InvalidStringerState&&) = default;
    ~InvalidStringerState() override;
};

} // namespace Qiv::Common::Serialization::Json
