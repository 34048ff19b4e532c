#pragma once

#include <Qiv/Common/Serialization/Export.h>

#include <string>

namespace Qiv::Common::Serialization
{

/// What a conversion reports: success, or a failure with its English text.
///
/// Converters never throw for bad input; this value is the only carrier of an error. A caller that passes a nested
/// failure on returns it unchanged. A success owns no memory.
class QIV_COMMON_SERIALIZATION_EXPORT Result
{
public:
    /// A success, with an empty message.
    Result() noexcept = default;

    /// A failure with this message, also when the message is empty. A null pointer counts as the empty text.
    Result(const char* errorMessage) : success_(false), errorMessage_(errorMessage == nullptr ? "" : errorMessage) {}
    Result(const std::string& errorMessage) : success_(false), errorMessage_(errorMessage) {}

    /// True when the conversion succeeded. Deliberately not explicit: callers store it in a `bool`.
    operator bool() const noexcept { return success_; }

    /// The failure's text, null-terminated; empty on success. Valid as long as this object is.
    const char* ErrorMessage() const noexcept { return errorMessage_.c_str(); }

private:
    bool success_ = true;
    std::string errorMessage_;
};

} // namespace Qiv::Common::Serialization
