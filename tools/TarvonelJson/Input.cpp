#include <TarvonelJson/Input.h>

#include <TarvonelJson/Messages.h>

#include <cerrno>
#include <cstring>
#include <new>
#include <string_view>
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

[[noreturn]] void ThrowLastError()
{
    throw InputError(std::generic_category().message(errno));
}

int Open(const std::string& name)
{
    const int descriptor =
        name == Input::standardInput ? STDIN_FILENO : open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        ThrowLastError();
    return descriptor;
}

bool IsStandardOutput(const struct stat& input)
{
    struct stat output = {};
    return fstat(STDOUT_FILENO, &output) == 0 && S_ISREG(output.st_mode) && output.st_dev == input.st_dev &&
           output.st_ino == input.st_ino;
}

/// The size in bytes of what can be read, 0 when that is not known.
std::int64_t CheckedSize(int descriptor, const std::string& name)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        return 0;
    if (S_ISDIR(status.st_mode))
        throw InputError("is a folder; name its files, for example " + (name == "/" ? "" : name) + "/*.json");
    if (IsStandardOutput(status))
        throw InputError("is the output, too; nothing is read from it");
    return S_ISREG(status.st_mode) ? status.st_size : 0;
}

/// Text that grows until it is too large. Then it is given up, and its memory is free for what follows.
class GrowingText
{
public:
    GrowingText(std::string& text, std::uint64_t maximumBytes) : text_(text), maximumBytes_(maximumBytes)
    {
        text_.clear();
    }

    void Append(std::string_view part)
    {
        if (state_ != Input::Part::Complete)
            return;
        if (part.size() > maximumBytes_ - text_.size())
            return GiveUp(Input::Part::TooLarge);
        try
        {
            text_.append(part);
        }
        catch (const std::bad_alloc&)
        {
            GiveUp(Input::Part::NoMemory);
        }
    }

    Input::Part State() const noexcept { return state_; }

private:
    void GiveUp(Input::Part state)
    {
        state_ = state;
        text_ = std::string();
    }

    std::string& text_;
    std::uint64_t maximumBytes_;
    Input::Part state_ = Input::Part::Complete;
};

} // namespace

Input::Input(const std::string& name, std::function<void()> beforeReading)
    : beforeReading_(std::move(beforeReading)),
      descriptor_(Open(name)),
      block_(blockCapacity),
      size_(CheckedSize(descriptor_, DisplayName(name))),
      progress_(DisplayName(name), size_)
{
    if (descriptor_ == STDIN_FILENO && isatty(STDIN_FILENO))
        Report("reading from the terminal, end with Ctrl-D");
}

Input::~Input()
{
    if (descriptor_ != STDIN_FILENO)
        close(descriptor_);
}

std::string Input::DisplayName(const std::string& name)
{
    return name == standardInput ? "<stdin>" : name;
}

Input::Part Input::ReadAll(std::string& text, std::uint64_t maximumBytes)
{
    GrowingText growing(text, maximumBytes);
    while (growing.State() == Part::Complete && ReadBlock())
        growing.Append({block_.data(), blockSize_});
    return growing.State();
}

Input::Part Input::ReadLine(std::string& line, std::uint64_t maximumBytes)
{
    GrowingText growing(line, maximumBytes);
    bool hasAny = false;
    bool isEnded = false;
    while (!isEnded && (blockUsed_ < blockSize_ || ReadBlock()))
    {
        hasAny = true;
        const char* const begin = block_.data() + blockUsed_;
        const auto available = blockSize_ - blockUsed_;
        const void* const end = std::memchr(begin, '\n', available);
        isEnded = end != nullptr;
        const auto length = isEnded ? static_cast<std::size_t>(static_cast<const char*>(end) - begin) : available;
        growing.Append({begin, length});
        blockUsed_ += length + (isEnded ? 1 : 0);
    }
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    progress_.CountDocument();
    return hasAny ? growing.State() : Part::None;
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
    progress_.CountBytes(count);
    return count > 0;
}

} // namespace TarvonelJson
