#pragma once

#include <Qiv/Common/Serialization/Json/Details/TextNode.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What is wrong with a text that is no strict JSON, told to people. Nothing here runs for a good text but the look at
/// its beginning.
namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

struct TextFailure
{
    std::string message; ///< one sentence without a full stop
    std::size_t offset;  ///< of what is to blame, in bytes; the size of the text when that ends too early
};

/// Where a strict parser stopped.
struct TextStop
{
    std::string_view text;
    std::size_t offset;       ///< of the byte that cannot go on
    std::size_t lastTokenEnd; ///< behind the last opening bracket, key or leaf; closing brackets may follow
    const Common::Serialization::Json::Details::TextNode* container; ///< innermost open one; null behind the document
    const Common::Serialization::Json::Details::TextNode* lastLeaf;  ///< number or literal that ends there, or null
    bool isBehindKey;                                                ///< whether the last token is a key
};

/// For a text that does not begin as a document: empty, in another encoding, in another language, or not with a
/// bracket.
std::optional<TextFailure> FailureOfBeginning(std::string_view text);

/// For a text that stops being JSON.
TextFailure FailureOf(const TextStop& stop);

/// "LINE:COLUMN", for a message.
std::string PlaceOf(std::string_view text, std::size_t offset);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
