#include <TarvonelJson/SourceText.h>

#include <cstdio>

namespace TarvonelJson
{

std::string SourceText::MessageStart(const Position& position, const std::string& pointer) const
{
    const auto inFile = InFile(position);
    auto start = file + ':' + std::to_string(inFile.line) + ':' + std::to_string(inFile.column) + ": ";
    if (!pointer.empty())
        start += pointer + ": ";
    return start;
}

void Report(const std::string& message)
{
    const auto line = message + '\n';
    // A message that nobody can receive changes nothing.
    static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

} // namespace TarvonelJson
