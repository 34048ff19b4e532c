#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextPosition.h>

#include <cstddef>
#include <string_view>

namespace TarvonelJson
{

/// Lines and columns of bytes of a text, as `PositionOf` tells them. All that are asked for in the order of the text
/// are found in one walk through it.
class Places
{
public:
    using Position = Qiv::DataModel::Tarvonel::Serialization::Json::TextPosition;

    explicit Places(std::string_view text) : text_(text) {}

    Position Of(std::ptrdiff_t offset);

private:
    std::string_view text_;
    std::size_t offset_ = 0;
    Position position_;
};

} // namespace TarvonelJson
