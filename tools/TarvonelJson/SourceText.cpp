#include <TarvonelJson/SourceText.h>

#include <TarvonelJson/Printable.h>

#include <limits>

namespace TarvonelJson
{

Qiv::DataModel::Tarvonel::Serialization::Json::TextLimits SourceText::Limits()
{
    Qiv::DataModel::Tarvonel::Serialization::Json::TextLimits limits;
    limits.bytes = std::numeric_limits<std::size_t>::max();
    return limits;
}

std::string SourceText::MessageStart(const Position& position, std::string_view pointer) const
{
    const auto inFile = InFile(position);
    auto start = ShortFileName(file) + ':' + std::to_string(inFile.line) + ':' + std::to_string(inFile.column) + ": ";
    if (!pointer.empty())
        start += Shortened(pointer, 120) + ": ";
    return start;
}

} // namespace TarvonelJson
