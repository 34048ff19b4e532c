#pragma once

#include <Qiv/Common/Serialization/Json/Details/TextNode.h>
#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/TextFailure.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextLimits.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

/// One JSON text as nodes that point into it. Small documents take no memory but the object's own, some 16 KiB.
///
/// Strict: RFC 8259 with well-formed UTF-8 and paired surrogates, an object or array at the top, no key twice in an
/// object, nothing but white space behind the document, and all inside the limits. A number whose exponent does not fit
/// into 32 bits is refused even where it is zero.
class TextDocument
{
public:
    TextDocument() noexcept {} // the buffers stay as they are
    TextDocument(const TextDocument&) = delete;
    TextDocument& operator=(const TextDocument&) = delete;

    /// Nothing on success; otherwise what is wrong and where, and the document has no nodes to look at. The text must
    /// outlive the document. Out of memory is std::bad_alloc.
    std::optional<TextFailure> Parse(std::string_view text, const TextLimits& limits);

    const Common::Serialization::Json::Details::TextNodes& Nodes() const noexcept { return nodes_; }
    const Common::Serialization::Json::Details::TextNode& Root() const noexcept { return *nodes_.nodes; }

private:
    class NodeWriter;

    Common::Serialization::Json::Details::TextNodes nodes_{};
    std::unique_ptr<Common::Serialization::Json::Details::TextNode[]> moreNodes_;
    std::unique_ptr<char[]> moreUnescaped_;
    Common::Serialization::Json::Details::TextNode firstNodes_[928];
    char firstUnescaped_[1024];
};

/// The same document as jsoncpp's own parser builds it, with the offsets of each value.
Common::Serialization::Json::JsonObject ToTree(const TextDocument& document);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
