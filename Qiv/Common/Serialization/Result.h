#pragma once

#include <memory>
#include <string>

namespace Qiv::Common::Serialization
{

// Exported so, since g++ does not take [[nodiscard]] beside the export macro's __attribute__.
/// What a conversion reports: success, or a failure with its English text.
///
/// Converters never throw for bad input; this value is the only carrier of an error. A caller that passes a nested
/// failure on returns it unchanged. A success owns no memory. Nobody drops a result by accident: where failing does not
/// matter, `static_cast<void>` says so.
class [[nodiscard, gnu::visibility("default")]] Result
{
public:
    /// A success, with an empty message.
    Result() noexcept = default;

    /// A failure with this message, also when the message is empty. A null pointer counts as the empty text.
    [[gnu::cold]] Result(const char* errorMessage);
    [[gnu::cold]] Result(const std::string& errorMessage);

    Result(const Result& other);
    Result& operator=(const Result& other);
    /// A moved-from failure is to be assigned to or destroyed only.
    Result(Result &&) noexcept = default;
    Result& operator=(Result&&) noexcept = default;
    ~Result() = default;

    /// True when the conversion succeeded. Deliberately not explicit: callers store it in a `bool`.
    operator bool() const noexcept
    {
        return __builtin_expect(errorMessage_ == nullptr, true) != 0; // a plain test: nodes take 1.2 % more to read
    }

    /// The failure's text, null-terminated; empty on success. Valid as long as this object is.
    const char* ErrorMessage() const noexcept
    {
        return errorMessage_ == nullptr ? "" : errorMessage_->c_str();
    }

private:
    // Null on success: every nested conversion returns a result, so passing on a success has to cost next to nothing.
    std::unique_ptr<const std::string> errorMessage_;
};

} // namespace Qiv::Common::Serialization
