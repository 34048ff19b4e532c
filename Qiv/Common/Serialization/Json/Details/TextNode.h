#pragma once

#include <cstdint>
#include <string_view>

/// A parsed text as a row of small nodes that point into it: what a view over a text reads.
namespace Qiv::Common::Serialization::Json::Details
{

enum class NodeType : std::uint8_t
{
    Null,
    False,
    True,
    Integer,         ///< fits into 64 bits with a sign
    UnsignedInteger, ///< fits into 64 bits only without a sign
    Real,            ///< any other number
    Text,
    Object,
    Array
};

/// A value, or a member's key. Nodes stand in the order of the text, the document itself first; a member is its key,
/// a Text, and then its value. The node behind a leaf is its next sibling, that of a container stands at `link`.
struct TextNode
{
    std::uint32_t offset; ///< of the value's first byte in the text, which is the opening quote of a text
    std::uint32_t size;   ///< bytes of a text, decoded, or of a number's spelling; count of members or elements
    std::uint32_t link;   ///< container: index of the node behind all its descendants; unescaped text: its place
    NodeType type;
    bool isUnescaped; ///< a text with escapes, which stands decoded among the unescaped ones
};
static_assert(sizeof(TextNode) == 16, "memory while reading is counted in nodes");

/// What a view needs besides a node.
struct TextNodes
{
    const char* text;
    const char* unescaped;
    const TextNode* nodes;
};

inline bool IsContainer(const TextNode& node) noexcept
{
    return node.type >= NodeType::Object;
}

/// The decoded text of a Text, which all keys are.
inline std::string_view DecodedOf(const TextNodes& nodes, const TextNode& node) noexcept
{
    return {node.isUnescaped ? nodes.unescaped + node.link : nodes.text + node.offset + 1, node.size};
}

/// The decoded text of a Text, or the spelling of a number.
inline std::string_view TextOf(const TextNodes& nodes, const TextNode& node) noexcept
{
    return node.type == NodeType::Text ? DecodedOf(nodes, node) : std::string_view(nodes.text + node.offset, node.size);
}

} // namespace Qiv::Common::Serialization::Json::Details
