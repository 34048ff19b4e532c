#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/TextDocument.h>

#include <Qiv/Common/Serialization/Json/Details/NumberText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Quote.h>

// Boost.JSON's event parser, compiled into this source alone, with the sources that it does not link without.
#include <boost/json/basic_parser_impl.hpp>

#include <boost/json/detail/impl/default_resource.ipp>
#include <boost/json/detail/impl/except.ipp>
#include <boost/json/detail/impl/shared_resource.ipp>
#include <boost/json/detail/impl/stack.ipp>
#include <boost/json/impl/error.ipp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using Common::Serialization::Json::Details::IsContainer;
using Common::Serialization::Json::Details::NodeType;
using Common::Serialization::Json::Details::RealOf;
using Common::Serialization::Json::Details::TextNode;
using Common::Serialization::Json::Details::TextOf;

namespace
{

using ParserError = boost::json::error_code;
using ParserText = boost::json::string_view;

constexpr std::size_t mostBytes = std::numeric_limits<std::int32_t>::max(); // the parser counts digits in an int
constexpr std::size_t mostDepth = 1000;
constexpr std::size_t fewKeys = 64; // of an object, so many that each can have a bit of its own
constexpr auto none = std::numeric_limits<std::uint32_t>::max();

// What stands between the end of a token and the beginning of the next value.
constexpr auto separators = []
{
    std::array<bool, 256> table{};
    for (const char character : {' ', '\t', '\n', '\r', ',', ':', ']', '}'})
        table[static_cast<unsigned char>(character)] = true;
    return table;
}();

bool IsSeparator(char character) noexcept
{
    return separators[static_cast<unsigned char>(character)];
}

} // namespace

// Makes nodes of the parser's events. What an event does not tell is where its value stands: true, false, null,
// objects, arrays and texts with escapes begin at the first byte that is no separator behind the last token whose end
// is known.
class TextDocument::NodeWriter
{
public:
    static constexpr auto max_object_size = std::numeric_limits<std::size_t>::max();
    static constexpr auto max_array_size = std::numeric_limits<std::size_t>::max();
    static constexpr auto max_key_size = std::numeric_limits<std::size_t>::max();
    static constexpr auto max_string_size = std::numeric_limits<std::size_t>::max();

    NodeWriter(TextDocument& document, std::string_view text, const TextLimits& limits) noexcept
        : document_(document),
          text_(text),
          limits_(limits),
          cursor_(text.data()),
          nodes_(document.firstNodes_),
          next_(nodes_),
          capacity_(static_cast<std::uint32_t>(std::size(document.firstNodes_))),
          unescaped_(document.firstUnescaped_),
          unescapedCapacity_(std::size(document.firstUnescaped_)),
          direct_(text.size())
    {
        limit_ = nodes_ + std::min<std::size_t>(capacity_, limits.values);
    }

    bool on_document_begin(ParserError&) noexcept { return true; }
    bool on_document_end(ParserError&) noexcept { return true; }
    bool on_object_begin(ParserError&)
    {
        outerKeys_[depth_++] = keyBits_;
        keyBits_ = 0;
        return Open(NodeType::Object);
    }
    bool on_array_begin(ParserError&) { return Open(NodeType::Array); }
    bool on_object_end(std::size_t size, ParserError&)
    {
        const auto first = open_ + 1;
        Close(size);
        keyBits_ = outerKeys_[--depth_];
        return size <= fewKeys || CheckManyKeys(first, static_cast<std::uint32_t>(size));
    }
    bool on_array_end(std::size_t size, ParserError&) noexcept
    {
        Close(size);
        return true;
    }
    bool on_key_part(ParserText text, std::size_t, ParserError&) { return AddPart(text); }
    bool on_string_part(ParserText text, std::size_t, ParserError&) { return AddPart(text); }
    bool on_key(ParserText text, std::size_t, ParserError&)
    {
        ++keys_;
        return IsDirect(text) ? AddDirect(text) && IsNew(text.data(), text.size())
                              : AddUnescaped(text) && IsNew(unescaped_ + (next_ - 1)->link, (next_ - 1)->size);
    }
    bool on_string(ParserText text, std::size_t, ParserError&)
    {
        return IsDirect(text) ? AddDirect(text) : AddUnescaped(text);
    }
    bool on_number_part(ParserText, ParserError&) noexcept { return true; }
    bool on_int64(std::int64_t, ParserText spelling, ParserError&) { return AddNumber(spelling, NodeType::Integer); }
    bool on_uint64(std::uint64_t, ParserText spelling, ParserError&)
    {
        return AddNumber(spelling, NodeType::UnsignedInteger);
    }
    bool on_double(double roughly, ParserText spelling, ParserError&)
    {
        // Only near the largest double does the exact value decide; this is also true for what is no number.
        if (!(std::fabs(roughly) < 1e300) && !std::isfinite(RealOf({spelling.data(), spelling.size()})))
            return FailAt(static_cast<std::size_t>(spelling.data() - text_.data()),
                          "'" + Unquoted({spelling.data(), spelling.size()}) +
                              "' is no JSON number, or too large for one of 64 bits");
        return AddNumber(spelling, NodeType::Real);
    }
    bool on_bool(bool value, ParserError&)
    {
        return value ? AddLiteral(NodeType::True, 4) : AddLiteral(NodeType::False, 5);
    }
    bool on_null(ParserError&) { return AddLiteral(NodeType::Null, 4); }
    bool on_comment_part(ParserText, ParserError&) noexcept { return true; }
    bool on_comment(ParserText, ParserError&) noexcept { return true; }

    const TextNode* Nodes() const noexcept { return nodes_; }
    const char* Unescaped() const noexcept { return unescaped_; }
    std::optional<TextFailure>& Failure() noexcept { return failure_; }

    TextStop StopAt(std::size_t offset) const
    {
        const auto count = Count();
        const auto* const container = open_ == none ? nullptr : nodes_ + open_;
        bool isBehindKey = false;
        if (container != nullptr && container->type == NodeType::Object)
            for (auto i = open_ + 1; i < count && !isBehindKey; i = isBehindKey ? i : Next(i + 1))
                isBehindKey = i + 1 == count;
        const auto* const last = count == 0 ? nullptr : next_ - 1;
        const bool isLeaf = last != nullptr && !IsContainer(*last) && last->type != NodeType::Text;
        return {
            text_,      offset, static_cast<std::size_t>(cursor_ - text_.data()), container, isLeaf ? last : nullptr,
            isBehindKey};
    }

private:
    std::uint32_t Count() const noexcept { return static_cast<std::uint32_t>(next_ - nodes_); }
    std::uint32_t OffsetOf(const char* place) const noexcept
    {
        return static_cast<std::uint32_t>(place - text_.data());
    }

    [[gnu::cold]] bool FailAt(std::size_t offset, std::string message)
    {
        failure_ = TextFailure{std::move(message), offset};
        return false;
    }

    const char* SkipSeparators() const noexcept
    {
        const auto* place = cursor_;
        while (IsSeparator(*place))
            ++place;
        return place;
    }

    // Inline, and what is rare is not: otherwise a full recorder takes 1.7 % more instructions.
    [[gnu::always_inline]] bool Add(const char* place, std::size_t size, std::uint32_t link, NodeType type,
                                    bool isUnescaped)
    {
        if (next_ == limit_ && !MakeRoom(place))
            return false;
        *next_++ = {OffsetOf(place), static_cast<std::uint32_t>(size), link, type, isUnescaped};
        return true;
    }

    bool Open(NodeType type)
    {
        const auto* const place = SkipSeparators();
        const auto parent = open_;
        if (!Add(place, 0, parent, type, false)) // until it is closed, the link leads outwards
            return false;
        open_ = Count() - 1;
        cursor_ = place + 1;
        return true;
    }

    void Close(std::size_t size) noexcept
    {
        auto& node = nodes_[open_];
        node.size = static_cast<std::uint32_t>(size);
        open_ = node.link;
        node.link = Count();
    }

    bool AddLiteral(NodeType type, std::uint32_t size)
    {
        const auto* const place = SkipSeparators();
        cursor_ = place + size;
        return Add(place, 0, 0, type, false);
    }

    bool AddNumber(ParserText spelling, NodeType type)
    {
        cursor_ = spelling.data() + spelling.size();
        return Add(spelling.data(), spelling.size(), 0, type, false);
    }

    // A text without escapes is told in one piece, which lies in the document's own text.
    bool IsDirect(ParserText text) const noexcept
    {
        const std::less<const char*> isBefore; // also for pointers into different memory
        return !isBefore(text.data(), text_.data()) && isBefore(text.data(), text_.data() + direct_);
    }

    bool AddDirect(ParserText text)
    {
        cursor_ = text.data() + text.size() + 1;
        return Add(text.data() - 1, text.size(), 0, NodeType::Text, false);
    }

    bool AddPart(ParserText text)
    {
        if (unescapedCapacity_ - unescapedSize_ < text.size())
            MakeRoomForUnescaped(text.size());
        std::memcpy(unescaped_ + unescapedSize_, text.data(), text.size());
        unescapedSize_ += text.size();
        pending_ += text.size();
        direct_ = 0;
        return true;
    }

    [[gnu::noinline]] bool AddUnescaped(ParserText lastPart)
    {
        AddPart(lastPart);
        const auto* const place = SkipSeparators();
        cursor_ = place + 1;
        while (*cursor_ != '"')
            cursor_ += *cursor_ == '\\' ? 2 : 1;
        ++cursor_;
        const auto size = pending_;
        pending_ = 0;
        direct_ = text_.size();
        return Add(place, size, static_cast<std::uint32_t>(unescapedSize_ - size), NodeType::Text, true);
    }

    // For at least one node more, unless the limit of values is reached.
    [[gnu::noinline]] bool MakeRoom(const char* place)
    {
        // A key takes a node, too. The one to be added may be a key, but then its value is refused.
        const auto count = Count();
        const auto values = count - keys_;
        if (values >= limits_.values)
            return FailAt(OffsetOf(place),
                          "the text has more than " + std::to_string(limits_.values) + " values, the limit set for it");
        if (count == capacity_)
            Grow(count);
        next_ = nodes_ + count;
        limit_ = nodes_ + std::min<std::size_t>(capacity_, count + (limits_.values - values));
        return true;
    }

    // A node takes at least two bytes of the text, a closing bracket or comma counted with it, so that the rest of the
    // text has a largest number of nodes. The storage doubles up to a fifth of what the whole text can have, and then
    // goes there at once: the old and the new one take at most 16 * (1/5 + 1) / 2 = 9.6 times the text.
    void Grow(std::uint32_t count)
    {
        const auto rest = text_.size() - static_cast<std::size_t>(cursor_ - text_.data());
        const auto most = count + (rest + std::min(limits_.depth, mostDepth)) / 2 + 2;
        const auto early = std::min<std::size_t>(std::size_t{2} * count, text_.size() / 10);
        const auto capacity = early > count + count / 4 ? std::min(early, most) : most;
        std::unique_ptr<TextNode[]> nodes(new TextNode[capacity]);
        std::memcpy(nodes.get(), nodes_, count * sizeof(TextNode));
        document_.moreNodes_ = std::move(nodes);
        nodes_ = document_.moreNodes_.get();
        capacity_ = static_cast<std::uint32_t>(capacity);
    }

    void MakeRoomForUnescaped(std::size_t more)
    {
        // Unescaped, no text becomes longer.
        const auto most = unescapedSize_ + more + text_.size() - static_cast<std::size_t>(cursor_ - text_.data());
        const auto capacity = std::min(most, std::max(2 * unescapedSize_, unescapedSize_ + more));
        std::unique_ptr<char[]> unescaped(new char[capacity]);
        std::memcpy(unescaped.get(), unescaped_, unescapedSize_);
        document_.moreUnescaped_ = std::move(unescaped);
        unescaped_ = document_.moreUnescaped_.get();
        unescapedCapacity_ = capacity;
    }

    // The member behind the one whose value stands at the index.
    std::uint32_t Next(std::uint32_t value) const noexcept
    {
        return IsContainer(nodes_[value]) ? nodes_[value].link : value + 1;
    }

    std::string_view KeyAt(std::uint32_t index) const noexcept
    {
        return TextOf({text_.data(), unescaped_, nullptr}, nodes_[index]);
    }

    // Keys that differ in size, first or last byte differ nearly always in the bit they set. Those of an empty key are
    // its quotes.
    bool IsNew(const char* key, std::size_t size)
    {
        const auto sum = static_cast<std::uint32_t>(size) + static_cast<unsigned char>(key[0]) +
                         static_cast<unsigned char>(key[static_cast<std::ptrdiff_t>(size) - 1]) * 11U;
        const auto bit = std::uint64_t{1} << sum % 64;
        if ((keyBits_ & bit) != 0)
            return IsNewAmongOthers();
        keyBits_ |= bit;
        return true;
    }

    // Whether no other key of the open object is equal to the last node; otherwise that is the failure. The keys of an
    // object of many are looked at when it is closed; until then, its size is the number of these looks.
    [[gnu::noinline]] bool IsNewAmongOthers()
    {
        if (nodes_[open_].size++ >= fewKeys)
            return true;
        const auto later = Count() - 1;
        const auto key = KeyAt(later);
        auto i = open_ + 1;
        for (auto left = fewKeys; i != later && left != 0; i = Next(i + 1), --left)
            if (nodes_[i].size == key.size() && KeyAt(i) == key)
                return FailForDuplicate(i, later);
        return true;
    }

    // A hash table without order; keys that are made to collide are sorted instead.
    [[gnu::noinline]] bool CheckManyKeys(std::uint32_t first, std::uint32_t size)
    {
        std::size_t mask = 255;
        while (mask < size + std::size_t{size} / 2)
            mask = 2 * mask + 1;
        const std::unique_ptr<std::uint32_t[]> table(new std::uint32_t[mask + 1]);
        std::fill_n(table.get(), mask + 1, none);
        std::size_t probesLeft = std::size_t{16} * size;
        auto i = first;
        for (auto count = size; count != 0; i = Next(i + 1), --count)
        {
            const auto key = KeyAt(i);
            auto slot = std::hash<std::string_view>()(key) & mask;
            for (; table[slot] != none && probesLeft != 0; slot = (slot + 1) & mask, --probesLeft)
                if (KeyAt(table[slot]) == key)
                    return FailForDuplicate(table[slot], i);
            if (probesLeft == 0)
                return CheckSortedKeys(first, size, table.get());
            table[slot] = i;
        }
        return true;
    }

    bool CheckSortedKeys(std::uint32_t first, std::uint32_t size, std::uint32_t* keys)
    {
        auto* end = keys;
        for (auto i = first; size != 0; i = Next(i + 1), --size)
            *end++ = i;
        std::sort(keys, end,
                  [this](auto left, auto right)
                  {
                      const auto comparison = KeyAt(left).compare(KeyAt(right));
                      return comparison < 0 || (comparison == 0 && left < right);
                  });
        const auto* const twice =
            std::adjacent_find(keys, end, [this](auto left, auto right) { return KeyAt(left) == KeyAt(right); });
        return twice == end || FailForDuplicate(twice[0], twice[1]);
    }

    [[gnu::cold]] bool FailForDuplicate(std::uint32_t earlier, std::uint32_t later)
    {
        return FailAt(nodes_[later].offset, "the key " + Quote(KeyAt(later)) +
                                                " stands twice in one object, first at " +
                                                PlaceOf(text_, nodes_[earlier].offset));
    }

    static std::string Unquoted(std::string_view text)
    {
        return text.size() <= 80 ? std::string(text) : std::string(text.substr(0, 77)) + "...";
    }

    TextDocument& document_;
    const std::string_view text_;
    const TextLimits& limits_;
    const char* cursor_;
    TextNode* nodes_;
    TextNode* next_;
    const TextNode* limit_; // where a limit or the storage must be looked at
    std::uint32_t capacity_;
    std::uint32_t keys_ = 0;
    std::uint32_t open_ = none;
    std::uint64_t keyBits_ = 0; // of the open object; what is around it has its own below
    std::size_t depth_ = 0;     // of objects alone
    std::uint64_t outerKeys_[mostDepth];
    char* unescaped_;
    std::size_t unescapedSize_ = 0;
    std::size_t unescapedCapacity_;
    std::size_t pending_ = 0; // bytes of the text whose parts come in
    std::size_t direct_;      // bytes from the beginning in which the parser may find a whole text
    std::optional<TextFailure> failure_;
};

std::optional<TextFailure> TextDocument::Parse(std::string_view text, const TextLimits& limits)
{
    nodes_ = {};
    moreNodes_.reset();
    moreUnescaped_.reset();
    if (const auto most = std::min(limits.bytes, mostBytes); text.size() > most)
        return TextFailure{"the text has more than " + std::to_string(most) + " bytes, the limit set for it", most};
    if (auto failure = FailureOfBeginning(text))
        return failure;

    boost::json::parse_options options;
    options.max_depth = std::min(limits.depth, mostDepth);
    boost::json::basic_parser<NodeWriter> parser(options, *this, text, limits);
    ParserError error;
    const auto end = parser.write_some(false, text.data(), text.size(), error);
    auto& writer = parser.handler();
    if (writer.Failure())
        return std::move(writer.Failure());
    if (error == boost::json::error::too_deep)
        return TextFailure{"objects and arrays are nested more than " + std::to_string(options.max_depth) +
                               " levels deep, the limit set for them",
                           end};
    if (error || end < text.size())
        return FailureOf(writer.StopAt(end));
    nodes_ = {text.data(), writer.Unescaped(), writer.Nodes()};
    return std::nullopt;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
