#include <Qiv/Common/Serialization/Json/Details/NumberText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/TextDocument.h>

#include <charconv>
#include <cstdint>
#include <new>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using Common::Serialization::Json::JsonObject;
using Common::Serialization::Json::Details::NodeType;
using Common::Serialization::Json::Details::RealOf;
using Common::Serialization::Json::Details::TextNode;
using Common::Serialization::Json::Details::TextNodes;
using Common::Serialization::Json::Details::TextOf;

namespace
{

template <typename Integer>
Integer IntegerOf(std::string_view spelling) noexcept
{
    Integer value = 0;
    std::from_chars(spelling.data(), spelling.data() + spelling.size(), value);
    return value;
}

class TreeBuilder
{
public:
    explicit TreeBuilder(const TextNodes& nodes) noexcept : nodes_(nodes), next_(nodes.nodes) {}

    // Makes the value of the next node, and those inside it.
    void Build(JsonObject& value)
    {
        const auto& node = *next_++;
        end_ = nodes_.text + node.offset;
        switch (node.type)
        {
        case NodeType::Null:
            end_ += 4;
            break;
        case NodeType::False:
            JsonObject(false).swapPayload(value);
            end_ += 5;
            break;
        case NodeType::True:
            JsonObject(true).swapPayload(value);
            end_ += 4;
            break;
        case NodeType::Integer:
            JsonObject(::Json::Value::Int64{IntegerOf<std::int64_t>(TextOf(nodes_, node))}).swapPayload(value);
            end_ += node.size;
            break;
        case NodeType::UnsignedInteger:
            JsonObject(::Json::Value::UInt64{IntegerOf<std::uint64_t>(TextOf(nodes_, node))}).swapPayload(value);
            end_ += node.size;
            break;
        case NodeType::Real:
            JsonObject(RealOf(TextOf(nodes_, node))).swapPayload(value);
            end_ += node.size;
            break;
        case NodeType::Text:
        {
            const auto text = TextOf(nodes_, node);
            JsonObject(text.data(), text.data() + text.size()).swapPayload(value);
            GoToEndOf(node);
            break;
        }
        case NodeType::Object:
            BuildObject(node, value);
            break;
        case NodeType::Array:
            BuildArray(node, value);
            break;
        }
        value.setOffsetStart(static_cast<std::ptrdiff_t>(node.offset));
        value.setOffsetLimit(end_ - nodes_.text);
    }

private:
    void BuildObject(const TextNode& node, JsonObject& value)
    {
        JsonObject(::Json::objectValue).swapPayload(value);
        for (auto count = node.size; count != 0; --count)
        {
            const auto key = TextOf(nodes_, *next_++);
            Build(*value.demand(key.data(), key.data() + key.size()));
        }
        GoBehindBracket(node);
    }

    void BuildArray(const TextNode& node, JsonObject& value)
    {
        JsonObject(::Json::arrayValue).swapPayload(value);
        for (auto count = node.size; count != 0; --count)
            Build(value.append(JsonObject()));
        GoBehindBracket(node);
    }

    // Only blanks stand between the last child, or the opening bracket, and the closing one.
    void GoBehindBracket(const TextNode& node) noexcept
    {
        if (node.size == 0)
            ++end_;
        while (*end_ != '}' && *end_ != ']')
            ++end_;
        ++end_;
    }

    void GoToEndOf(const TextNode& node) noexcept
    {
        ++end_;
        if (!node.isUnescaped)
            end_ += node.size;
        while (*end_ != '"')
            end_ += *end_ == '\\' ? 2 : 1;
        ++end_;
    }

    const TextNodes& nodes_;
    const TextNode* next_;
    const char* end_ = nullptr; // of the last value
};

} // namespace

JsonObject ToTree(const TextDocument& document)
{
    JsonObject root;
    try
    {
        TreeBuilder(document.Nodes()).Build(root);
    }
    catch (const ::Json::RuntimeError&)
    {
        throw std::bad_alloc(); // which jsoncpp tells so when it has no memory for a text
    }
    return root;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
