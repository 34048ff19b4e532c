#pragma once

#include <string>
#include <string_view>

namespace TarvonelJson
{

/// One line for people, with its end: at most 1,000 bytes, and nothing in it can steer a terminal or pass for another
/// line, whatever texts it was made from. In colour, `start` is bold and a text that begins with "FATAL" red.
std::string MessageLine(std::string_view start, std::string_view text, bool isColoured);

/// Whether lines for the descriptor are coloured: it is a terminal and NO_COLOR is not set.
bool IsColoured(int descriptor);

/// Writes the line `start`, which is "FILE:LINE:COLUMN: " or alike, and `text` on standard error.
void Report(std::string_view start, std::string_view text);

/// The same with the program's name as start, for what is about no place in a file.
void Report(std::string_view text);

} // namespace TarvonelJson
