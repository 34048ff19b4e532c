#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

/// What every fuzz target uses: its input in pieces, and a check that ends the process when it does not hold.
namespace Fuzz
{

/// Prints what does not hold, with the texts concerned, and aborts, so that the fuzzer keeps the input.
inline void Check(bool holds, const char* what, std::string_view first = "", std::string_view second = "")
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    for (const auto text : {first, second})
    {
        std::fwrite(text.data(), 1, text.size(), stderr);
        std::fputc('\n', stderr);
    }
    std::abort();
}

/// The bytes of one input, taken from the front. An exhausted input gives zeros and empty texts.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) noexcept : rest_(reinterpret_cast<const char*>(data), size) {}

    bool IsEmpty() const noexcept { return rest_.empty(); }
    std::uint8_t Byte() noexcept { return Number<std::uint8_t>(); }

    template <typename T>
    T Number() noexcept
    {
        T number{};
        const auto bytes = Text(sizeof number);
        std::memcpy(&number, bytes.data(), bytes.size());
        return number;
    }

    std::string_view Text(std::size_t size) noexcept
    {
        const auto text = rest_.substr(0, std::min(size, rest_.size()));
        rest_.remove_prefix(text.size());
        return text.empty() ? std::string_view("") : text;
    }
    /// A text of up to 255 bytes, whose length stands before it.
    std::string_view Text() noexcept { return Text(Byte()); }
    /// A text up to the next line end, which goes with it.
    std::string_view Line() noexcept
    {
        const auto line = Text(rest_.find('\n'));
        Text(1);
        return line;
    }
    std::string_view Rest() noexcept { return Text(rest_.size()); }

private:
    std::string_view rest_;
};

/// A copy without a byte behind it, so that AddressSanitizer sees who reads too far.
class ExactCopy
{
public:
    explicit ExactCopy(std::string_view text) : bytes_(new char[text.size()]), size_(text.size())
    {
        std::copy(text.begin(), text.end(), bytes_.get());
    }
    std::string_view Text() const noexcept { return {bytes_.get(), size_}; }

private:
    std::unique_ptr<char[]> bytes_;
    std::size_t size_;
};

} // namespace Fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
