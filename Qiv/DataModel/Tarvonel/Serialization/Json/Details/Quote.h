#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

/// A document's text for a sentence that people read: in double quotes, at most `longest` characters with them, on one
/// line and well-formed whatever the text is. What has no glyph of its own or turns the direction of writing is escaped
/// as in JSON, a byte that is no UTF-8 as \xFF; of a longer text the beginning is kept, and "..." stands behind it.
std::string Quote(std::string_view text, std::size_t longest = 80);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
