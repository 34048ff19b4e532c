#include <TarvonelJson/Input.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TarvonelJson
{

namespace
{

constexpr std::size_t blockCapacity = std::size_t{64} << 10;
constexpr std::int64_t progressStep = std::int64_t{16} << 20;

[[noreturn]] void ThrowLastError()
{
    throw InputError(std::generic_category().message(errno));
}

} // namespace

Input::Input(const std::string& name, std::function<void()> beforeReading)
    : displayName_(DisplayName(name)),
      beforeReading_(std::move(beforeReading)),
      descriptor_(name == standardInput ? STDIN_FILENO : open(name.c_str(), O_RDONLY | O_CLOEXEC)),
      block_(blockCapacity)
{
    if (descriptor_ < 0)
        ThrowLastError();
    if (isatty(STDERR_FILENO) && !isatty(STDOUT_FILENO))
        nextProgress_ = progressStep;
    struct stat status = {};
    if (fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode))
        size_ = status.st_size;
    if (descriptor_ == STDIN_FILENO && isatty(STDIN_FILENO))
        std::fputs("tarvonel-json: reading from the terminal, end with Ctrl-D\n", stderr);
}

Input::~Input()
{
    if (showsProgress_)
        std::fputs("\r\033[K", stderr);
    if (descriptor_ != STDIN_FILENO)
        close(descriptor_);
}

std::string Input::DisplayName(const std::string& name)
{
    return name == standardInput ? "<stdin>" : name;
}

std::string Input::ReadAll()
{
    std::string text;
    while (ReadBlock())
        text.append(block_.data(), blockSize_);
    return text;
}

Input::Line Input::ReadLine(std::string& line)
{
    line.clear();
    bool hasAny = false;
    bool isTooLong = false;
    bool isEnded = false;
    while (!isEnded && (blockUsed_ < blockSize_ || ReadBlock()))
    {
        hasAny = true;
        const char* const begin = block_.data() + blockUsed_;
        const auto available = blockSize_ - blockUsed_;
        const void* const end = std::memchr(begin, '\n', available);
        isEnded = end != nullptr;
        const auto length = isEnded ? static_cast<std::size_t>(static_cast<const char*>(end) - begin) : available;
        isTooLong = isTooLong || line.size() + length > maximumLineLength;
        if (!isTooLong)
            line.append(begin, length);
        blockUsed_ += length + (isEnded ? 1 : 0);
    }
    if (isTooLong)
        return Line::TooLong;
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return hasAny ? Line::Complete : Line::None;
}

bool Input::ReadBlock()
{
    beforeReading_();
    ssize_t count = 0;
    do
    {
        count = read(descriptor_, block_.data(), block_.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0)
        ThrowLastError();
    blockSize_ = static_cast<std::size_t>(count);
    blockUsed_ = 0;
    bytesRead_ += count;
    if (bytesRead_ >= nextProgress_)
        ShowProgress();
    return count > 0;
}

void Input::ShowProgress()
{
    auto text = '\r' + displayName_ + ": " + std::to_string(bytesRead_ >> 20) + " MiB";
    if (size_ > 0)
        text += " of " + std::to_string(size_ >> 20) + " MiB, " + std::to_string(bytesRead_ * 100 / size_) + " %";
    std::fputs(text.c_str(), stderr);
    showsProgress_ = true;
    nextProgress_ = bytesRead_ + progressStep;
}

} // namespace TarvonelJson
