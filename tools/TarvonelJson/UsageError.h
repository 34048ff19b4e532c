#pragma once

#include <CLI/App.hpp>

#include <string>

namespace TarvonelJson
{

/// Reports what is wrong with a command line, with the word that was perhaps meant and where to read more.
void ReportUsageError(const CLI::App& program, const CLI::ParseError& error, int argc, const char* const* argv);

void ReportUnknownCommand(const CLI::App& program, const std::string& name);

} // namespace TarvonelJson
