#include <TarvonelJson/Output.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace TarvonelJson
{

void Output::Write(std::string_view text)
{
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        throw std::system_error(errno, std::generic_category(), "standard output");
}

void Output::Flush()
{
    if (std::fflush(stdout) != 0)
        throw std::system_error(errno, std::generic_category(), "standard output");
}

} // namespace TarvonelJson
