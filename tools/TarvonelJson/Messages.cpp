#include <TarvonelJson/Messages.h>

#include <TarvonelJson/Printable.h>
#include <TarvonelJson/Progress.h>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace TarvonelJson
{

namespace
{

constexpr std::size_t longestLine = 1000;
constexpr std::string_view cutMark = "...";
constexpr const char* bold = "\033[1m";
constexpr const char* red = "\033[31m";
constexpr const char* plain = "\033[0m";

} // namespace

std::string MessageLine(std::string_view start, std::string_view text, bool isColoured)
{
    auto line = Printable(start);
    const auto startLength = line.size();
    // What stands behind the longest line is not looked at.
    line += Printable(text.substr(0, longestLine));
    constexpr std::size_t colours = 20;
    constexpr auto longest = longestLine - colours;
    if (line.size() > longest)
    {
        auto length = longest - cutMark.size() - 1;
        while ((static_cast<unsigned char>(line[length]) & 0xC0) == 0x80) // within a character
            --length;
        line.replace(length, std::string::npos, cutMark);
    }
    if (isColoured && startLength < line.size())
    {
        const bool isFatal = text.substr(0, 5) == "FATAL";
        line.insert(startLength, isFatal ? std::string(plain) + red : std::string(plain));
        line.insert(0, bold);
        line += isFatal ? plain : "";
    }
    return line + '\n';
}

bool IsColoured(int descriptor)
{
    const char* const noColour = std::getenv("NO_COLOR");
    return (noColour == nullptr || *noColour == '\0') && isatty(descriptor) != 0;
}

void Report(std::string_view start, std::string_view text)
{
    static const bool isColoured = IsColoured(STDERR_FILENO);
    Progress::Wipe();
    const auto line = MessageLine(start, text, isColoured);
    // A message that nobody can receive changes nothing.
    static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

void Report(std::string_view text)
{
    Report("tarvonel-json: ", text);
}

} // namespace TarvonelJson
