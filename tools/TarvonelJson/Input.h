#pragma once

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
    enum class Line
    {
        Complete,
        TooLong, ///< longer than `maximumLineLength`, and passed over
        None,    ///< the input has ended
    };
    static constexpr std::size_t maximumLineLength = std::size_t{64} << 20;

    /// `name` is a path, or "-" for standard input. `beforeReading` is called whenever reading may take its time.
    ///
    /// @throws InputError, like all reading
    Input(const std::string& name, std::function<void()> beforeReading);
    ~Input();
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    static constexpr const char* standardInput = "-";
    /// The file as messages name it.
    static std::string DisplayName(const std::string& name);

    /// Everything that is left.
    std::string ReadAll();

    /// The next line without its end ("\n" or "\r\n"). The memory needed does not depend on how long the input is. A
    /// large input shows its progress on standard error when that is a terminal and standard output is none.
    Line ReadLine(std::string& line);

private:
    bool ReadBlock();
    void ShowProgress();

    std::string displayName_;
    std::function<void()> beforeReading_;
    int descriptor_;
    std::vector<char> block_;
    std::size_t blockSize_ = 0;
    std::size_t blockUsed_ = 0;
    std::int64_t bytesRead_ = 0;
    std::int64_t size_ = 0; // 0 when it is not known
    std::int64_t nextProgress_ = INT64_MAX;
    bool showsProgress_ = false;
};

} // namespace TarvonelJson
