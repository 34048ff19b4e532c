#include <TarvonelJson/Progress.h>

#include <TarvonelJson/Printable.h>

#include <cstdio>

#include <unistd.h>

namespace TarvonelJson
{

namespace
{

// There is one terminal.
bool isWanted = isatty(STDERR_FILENO) != 0;
bool isShown = false;

std::string Bytes(double bytes)
{
    constexpr double kibi = 1024;
    const bool isLarge = bytes >= kibi * kibi;
    return std::to_string(static_cast<std::int64_t>(bytes / (isLarge ? kibi * kibi : kibi))) +
           (isLarge ? " MiB" : " KiB");
}

} // namespace

Progress::Progress(const std::string& displayName, std::int64_t size)
    : name_(Shortened(displayName, 30, Keep::End)), size_(size)
{
}

void Progress::CountBytes(std::int64_t bytes)
{
    bytes_ += bytes;
    if (!isWanted)
        return;
    const auto now = Clock::now();
    if (now < next_)
        return;
    next_ = now + step;
    Show(std::chrono::duration<double>(now - start_).count());
}

void Progress::Show(double seconds) const
{
    auto text = name_ + ": " + Bytes(static_cast<double>(bytes_));
    const auto bytesASecond = static_cast<double>(bytes_) / seconds;
    if (size_ > 0)
        text += " of " + Bytes(static_cast<double>(size_));
    else
        text += ", " + Bytes(bytesASecond) + "/s";
    if (documents_ > 0)
        text += ", " + std::to_string(static_cast<std::int64_t>(static_cast<double>(documents_) / seconds)) +
                " documents/s";
    if (size_ > bytes_ && bytes_ > 0)
        text += ", " +
                std::to_string(1 + static_cast<std::int64_t>(static_cast<double>(size_ - bytes_) / bytesASecond)) +
                " s left";
    std::fputs(("\r\033[K" + text).c_str(), stderr);
    isShown = true;
}

void Progress::Wipe()
{
    if (isShown)
        std::fputs("\r\033[K", stderr);
    isShown = false;
}

void Progress::Silence()
{
    Wipe();
    isWanted = false;
}

} // namespace TarvonelJson
