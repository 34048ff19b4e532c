#pragma once

#include <TarvonelJson/Progress.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace TarvonelJson
{

/// Why an input can't be read, for example "No such file or directory".
class InputError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A file or standard input, read once from beginning to end.
class Input
{
public:
    enum class Part
    {
        Complete,
        TooLarge, ///< larger than is asked for; passed over
        NoMemory, ///< larger than memory suffices for; passed over
        None,     ///< the input has ended
    };

    /// `name` is a path, or "-" for standard input. `beforeReading` is called whenever reading may take its time.
    ///
    /// @throws InputError, like all reading; also for a folder, and for the file that standard output is
    Input(const std::string& name, std::function<void()> beforeReading);
    ~Input();
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    static constexpr const char* standardInput = "-";
    /// The file as messages name it.
    static std::string DisplayName(const std::string& name);

    /// Everything that is left, which is "Complete" also when that is nothing.
    Part ReadAll(std::string& text, std::uint64_t maximumBytes);

    /// The next line without its end ("\n" or "\r\n"). The memory needed is that of the longest line.
    Part ReadLine(std::string& line, std::uint64_t maximumBytes);

private:
    bool ReadBlock();

    std::function<void()> beforeReading_;
    int descriptor_;
    std::vector<char> block_;
    std::size_t blockSize_ = 0;
    std::size_t blockUsed_ = 0;
    std::int64_t size_ = 0; // 0 when it is not known
    Progress progress_;
};

} // namespace TarvonelJson
