#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// A std::string that is meant to hold UTF-8 text. The text is taken as it is, without validation.
///
/// Null-terminated arguments end at their first NUL, and a null pointer gives an empty text. With a length, the text
/// may hold NUL bytes.
class Utf8String : public std::string
{
public:
    Utf8String() = default;
    Utf8String(const char* text) : std::string(text != nullptr ? text : "") {}
    Utf8String(const char* text, std::size_t length) : std::string(text != nullptr ? std::string(text, length) : "") {}
    Utf8String(const std::string& text) : std::string(text) {}
    Utf8String(std::string&& text) noexcept : std::string(std::move(text)) {}
    explicit Utf8String(std::string_view text) : std::string(text) {}
    Utf8String(const std::uint8_t* bytes) : Utf8String(reinterpret_cast<const char*>(bytes)) {}
    Utf8String(const std::uint8_t* bytes, std::size_t length) : Utf8String(reinterpret_cast<const char*>(bytes), length)
    {
    }
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
