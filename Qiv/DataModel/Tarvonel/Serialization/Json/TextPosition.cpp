#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextPosition.h>

#include <algorithm>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

TextPosition PositionOf(std::string_view text, std::ptrdiff_t offset) noexcept
{
    const auto length = std::min(static_cast<std::size_t>(std::max<std::ptrdiff_t>(offset, 0)), text.size());
    TextPosition position;
    for (std::size_t i = 0; i < length; ++i)
    {
        const auto endsLine = text[i] == '\n' || (text[i] == '\r' && text.substr(i + 1, 1) != "\n");
        position.line += endsLine ? 1 : 0;
        position.column = endsLine ? 1 : position.column + 1;
    }
    return position;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
