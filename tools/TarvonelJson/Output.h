#pragma once

#include <string_view>

namespace TarvonelJson
{

/// Standard output, of which every failure to write is noticed: a full disk, a reader that went away, a closed stream.
class Output
{
public:
    /// @throws std::system_error "standard output: No space left on device", like `Flush`
    void Write(std::string_view text);
    void Flush();
};

} // namespace TarvonelJson
