#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextPosition.h>

#include <string>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// What reading a text reports: success, or a failure with its English text and its place.
class [[nodiscard, gnu::visibility("default")]] TextResult
{
public:
    /// A success.
    TextResult() = default;

    TextResult(std::string errorMessage, const TextPosition& position, std::string pointer = {},
               std::string sentence = {})
        : success_(false),
          errorMessage_(std::move(errorMessage)),
          position_(position),
          pointer_(std::move(pointer)),
          sentence_(std::move(sentence))
    {
    }

    explicit operator bool() const noexcept
    {
        return success_;
    }

    /// What is wrong; when the reader fails, its own text, as its `Result` tells it. Empty on success.
    const std::string& ErrorMessage() const noexcept
    {
        return errorMessage_;
    }
    /// What is wrong, told to people: that of the finding when the reader fails (InspectDocument), otherwise the
    /// message. One line of printable text, in which a text of the document is cut to 80 characters, and the reader's
    /// own text to 200. Empty on success.
    const std::string& Sentence() const noexcept
    {
        return sentence_.empty() ? errorMessage_ : sentence_;
    }
    /// The place of the failure; line 1, column 1 on success.
    const TextPosition& Position() const noexcept
    {
        return position_;
    }
    /// The value that the failure is about, as an RFC 6901 pointer; empty for the document as a whole, when the text is
    /// no JSON, and on success.
    const std::string& Pointer() const noexcept
    {
        return pointer_;
    }

private:
    bool success_ = true;
    std::string errorMessage_;
    TextPosition position_;
    std::string pointer_;
    std::string sentence_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
