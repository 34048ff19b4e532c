#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace TarvonelJson
{

/// The text with everything escaped that could steer a terminal, break the line or hide what stands there: controls,
/// line and paragraph separators, bidirectional and invisible formatting as \u001b, ill-formed bytes as \xff.
std::string Printable(std::string_view text);

/// A JSON text in which the characters that `Printable` escapes are \u escapes, save those below U+0020: there they can
/// only be the layout of the text. Its meaning stays the same.
std::string PrintableJson(std::string_view json);

enum class Keep
{
    Start,
    End,
};

/// The printable text, with "..." in place of what is more than `length` characters.
std::string Shortened(std::string_view text, std::size_t length = 80, Keep keep = Keep::Start);

/// A file name for a message: printable, and of a long path the end.
std::string ShortFileName(std::string_view name);

} // namespace TarvonelJson
