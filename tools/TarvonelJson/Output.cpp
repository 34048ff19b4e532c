#include <TarvonelJson/Output.h>

#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Printable.h>
#include <TarvonelJson/Progress.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <system_error>

#include <unistd.h>

namespace TarvonelJson
{

// The signal itself would leave the progress on the terminal.
Output::Output()
    : isTerminal_(isatty(STDOUT_FILENO) != 0),
      isColoured_(TarvonelJson::IsColoured(STDOUT_FILENO)),
      endsByBrokenPipe_(std::signal(SIGPIPE, SIG_IGN) != SIG_IGN)
{
}

void Output::Write(std::string_view text)
{
    if (isTerminal_ && !text.empty())
        Progress::Silence();
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size())
        Fail();
}

void Output::WriteJson(std::string_view json)
{
    if (isTerminal_)
        Write(PrintableJson(json));
    else
        Write(json);
    Write("\n");
}

void Output::Flush()
{
    if (std::fflush(stdout) != 0)
        Fail();
}

void Output::Fail() const
{
    const auto error = errno;
    if (error == EPIPE && endsByBrokenPipe_)
    {
        Progress::Wipe();
        std::signal(SIGPIPE, SIG_DFL);
        std::raise(SIGPIPE);
    }
    throw OutputError("standard output: " + std::generic_category().message(error));
}

} // namespace TarvonelJson
