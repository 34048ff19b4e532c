#include <TarvonelJson/Places.h>

#include <algorithm>

namespace TarvonelJson
{

Places::Position Places::Of(std::ptrdiff_t offset)
{
    const auto target = std::min(static_cast<std::size_t>(std::max<std::ptrdiff_t>(offset, 0)), text_.size());
    if (target < offset_)
    {
        offset_ = 0;
        position_ = Position();
    }
    for (; offset_ < target; ++offset_)
    {
        const auto character = text_[offset_];
        const bool endsLine = character == '\n' || (character == '\r' && text_.substr(offset_ + 1, 1) != "\n");
        position_.line += endsLine ? 1 : 0;
        position_.column = endsLine ? 1 : position_.column + 1;
    }
    return position_;
}

} // namespace TarvonelJson
