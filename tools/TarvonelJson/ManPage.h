#pragma once

#include <CLI/App.hpp>

#include <string>

namespace TarvonelJson
{

/// The manual page of the program, in the man macros of roff, from the same texts as --help.
std::string ManPage(const CLI::App& program);

} // namespace TarvonelJson
