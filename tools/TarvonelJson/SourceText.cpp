#include <TarvonelJson/SourceText.h>

#include <TarvonelJson/Printable.h>

namespace TarvonelJson
{

std::string SourceText::MessageStart(const Position& position, std::string_view pointer) const
{
    const auto inFile = InFile(position);
    auto start = ShortFileName(file) + ':' + std::to_string(inFile.line) + ':' + std::to_string(inFile.column) + ": ";
    if (!pointer.empty())
        start += Shortened(pointer, 120) + ": ";
    return start;
}

} // namespace TarvonelJson
