#pragma once

#include <stdexcept>
#include <string_view>

namespace TarvonelJson
{

/// Why standard output can't be written: a full disk, a closed stream.
class OutputError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Standard output, of which every failure to write is noticed. Where its reader went away, the process ends as the
/// signal SIGPIPE ends others, without a message; where that signal was ignored at the start, it is an error like
/// others.
class Output
{
public:
    Output();

    /// @throws OutputError "standard output: No space left on device", like `Flush`
    void Write(std::string_view text);
    void Flush();

    /// A JSON text and the end of its line. On a terminal all that could steer it is escaped.
    void WriteJson(std::string_view json);

    bool IsColoured() const noexcept { return isColoured_; }

private:
    [[noreturn]] void Fail() const;

    bool isTerminal_;
    bool isColoured_;
    bool endsByBrokenPipe_;
};

} // namespace TarvonelJson
