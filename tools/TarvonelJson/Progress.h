#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace TarvonelJson
{

/// Tells on standard error, when that is a terminal, how far the reading of an input is; one at a time. The line is
/// shown when reading takes its time, and wiped at the end.
class Progress
{
public:
    /// `size` in bytes is that of the whole input, 0 when it is not known.
    Progress(const std::string& displayName, std::int64_t size);
    ~Progress() { Wipe(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void CountBytes(std::int64_t bytes);
    void CountDocument() { ++documents_; }

    /// Takes the line from the terminal, so that something else can be written there.
    static void Wipe();
    /// No line is shown any more: what is written to the terminal tells the progress.
    static void Silence();

private:
    using Clock = std::chrono::steady_clock;

    void Show(double seconds) const;

    std::string name_;
    std::int64_t size_;
    std::int64_t bytes_ = 0;
    std::int64_t documents_ = 0;
    Clock::time_point start_ = Clock::now();
    Clock::time_point next_ = start_ + step;

    static constexpr auto step = std::chrono::milliseconds(500);
};

} // namespace TarvonelJson
