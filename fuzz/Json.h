#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// JSON and UTF-8 seen without the library and without jsoncpp, to judge both.
namespace Fuzz
{

struct Utf8Sequence
{
    std::size_t size;
    bool isWellFormed;
};

/// The sequence at the start of a text that is not empty; for an ill-formed one its maximal subpart.
Utf8Sequence FirstSequence(std::string_view text) noexcept;

/// The text with U+FFFD in place of each maximal subpart of an ill-formed sequence.
std::string WellFormed(std::string_view text);

/// True for exactly one JSON text as RFC 8259 has it, well-formed UTF-8 included. White space may stand around it.
bool IsStrictJson(std::string_view text) noexcept;

} // namespace Fuzz
