#include <Qiv/Common/Serialization/Json/Stringer.h>

#include <Qiv/Common/Serialization/Json/InvalidStringerState.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <exception>
#include <stdexcept>
#include <utility>

namespace Qiv::Common::Serialization::Json
{

namespace
{

constexpr std::size_t wordSize = sizeof(std::uint64_t);
constexpr std::uint64_t everyByte = 0x0101010101010101U;

// A word whose lowest high bit marks the first of its bytes that can't be copied as it is: a control character, a
// quote, a backslash or a byte of a non-ASCII character; 0 when there is none. Bits above the lowest one may be false
// alarms. The first byte of the text is the lowest byte of the word.
std::uint64_t BytesToHandle(std::uint64_t word) noexcept
{
    const auto control = word - everyByte * 0x20U;
    const auto quote = (word ^ (everyByte * '"')) - everyByte;
    const auto backslash = (word ^ (everyByte * '\\')) - everyByte;
    return (control | quote | backslash | word) & (everyByte * 0x80U);
}

template <typename T>
T Load(const char* text) noexcept
{
    T value;
    std::memcpy(&value, text, sizeof value);
    return value;
}

// The last bytes of a text, fewer than a word, as a word filled up with zeros.
std::uint64_t LoadTail(const char* text, std::size_t size) noexcept
{
    if (size >= 4)
    {
        const std::uint64_t low = Load<std::uint32_t>(text);
        const std::uint64_t high = Load<std::uint32_t>(text + size - 4);
        return low | high << (8 * (size - 4));
    }
    if (size == 0)
        return 0;
    const auto byte = [text](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(text[i])} << (8 * i); };
    return byte(0) | byte(size / 2) | byte(size - 1);
}

// Copies bytes that need no escape, and garbage behind them up to a word; returns how many there were.
std::size_t CopyPlain(char* to, const char* from, std::size_t size) noexcept
{
    std::size_t copied = 0;
    for (; size - copied >= wordSize; copied += wordSize)
    {
        const auto word = Load<std::uint64_t>(from + copied);
        std::memcpy(to + copied, &word, wordSize);
        if (const auto found = BytesToHandle(word))
            return copied + static_cast<std::size_t>(__builtin_ctzll(found)) / 8;
    }
    const auto left = size - copied;
    const auto word = LoadTail(from + copied, left);
    std::memcpy(to + copied, &word, wordSize);
    const auto found = BytesToHandle(word) & ((std::uint64_t{1} << (8 * left)) - 1);
    return found == 0 ? size : copied + static_cast<std::size_t>(__builtin_ctzll(found)) / 8;
}

char* WriteEscape(char* to, unsigned char character) noexcept
{
    *to++ = '\\';
    switch (character)
    {
    case '"':
    case '\\':
        *to++ = static_cast<char>(character);
        return to;
    case '\b':
        *to++ = 'b';
        return to;
    case '\f':
        *to++ = 'f';
        return to;
    case '\n':
        *to++ = 'n';
        return to;
    case '\r':
        *to++ = 'r';
        return to;
    case '\t':
        *to++ = 't';
        return to;
    default:
        std::memcpy(to, "u00", 3);
        to[3] = "0123456789abcdef"[character >> 4];
        to[4] = "0123456789abcdef"[character & 0xF];
        return to + 5;
    }
}

struct Utf8Sequence
{
    std::size_t size;
    bool isWellFormed;
};

// The UTF-8 sequence at the start of a text that begins with a non-ASCII byte; for an ill-formed one its maximal
// subpart (The Unicode Standard, table 3-7 and section 3.9).
Utf8Sequence FirstSequence(const char* text, std::size_t available) noexcept
{
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto isContinuation = [&](std::size_t i) { return i < available && (byte(i) & 0xC0U) == 0x80U; };

    const auto lead = byte(0);
    if (lead < 0xC2 || lead > 0xF4)
        return {1, false};
    if (lead < 0xE0)
        return isContinuation(1) ? Utf8Sequence{2, true} : Utf8Sequence{1, false};

    const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;  // no overlong forms
    const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF; // no surrogates, nothing past U+10FFFF
    if (available < 2 || byte(1) < lowest || byte(1) > highest)
        return {1, false};
    if (!isContinuation(2))
        return {2, false};
    if (lead < 0xF0)
        return {3, true};
    return isContinuation(3) ? Utf8Sequence{4, true} : Utf8Sequence{3, false};
}

std::string_view NotNull(const char* text, const char* operation)
{
    if (text == nullptr)
        throw std::invalid_argument(std::string("Stringer::") + operation + ": null pointer instead of a text");
    return text;
}

} // namespace

// -- TextBuffer

Stringer::TextBuffer::TextBuffer(const TextBuffer& other)
{
    if (other.size_ != 0)
        End(std::copy_n(other.data_.get(), other.size_, Reserve(other.size_)));
}

Stringer::TextBuffer::TextBuffer(TextBuffer&& other) noexcept
    : data_(std::move(other.data_)), size_(std::exchange(other.size_, 0)), capacity_(std::exchange(other.capacity_, 0))
{
}

Stringer::TextBuffer& Stringer::TextBuffer::operator=(TextBuffer other) noexcept
{
    data_.swap(other.data_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
    return *this;
}

char* Stringer::TextBuffer::Grow(char* end, std::size_t room)
{
    constexpr std::size_t firstCapacity = 1024; // holds a whole channel
    const auto composed = static_cast<std::size_t>(end - data_.get());
    const auto capacity = std::max({firstCapacity, 2 * capacity_, composed + room});
    std::unique_ptr<char[]> data(new char[capacity]);
    if (composed != 0)
        std::memcpy(data.get(), data_.get(), composed);
    data_ = std::move(data);
    capacity_ = capacity;
    return data_.get() + composed;
}

char* Stringer::TextBuffer::Quote(char* end, std::string_view text)
{
    // Invariant at each turn: there is room for the rest of the text, for `slack` bytes, and for an escape, the closing
    // quote and the word that CopyPlain may write too far.
    *end++ = '"';
    while (true)
    {
        const auto plain = CopyPlain(end, text.data(), text.size());
        end += plain;
        text.remove_prefix(plain);
        if (text.empty())
            break;

        if (const auto character = static_cast<unsigned char>(text.front()); character < 0x80)
        {
            end = WriteEscape(end, character);
            text.remove_prefix(1);
        }
        else
        {
            do
            {
                const auto sequence = FirstSequence(text.data(), text.size());
                if (!sequence.isWellFormed)
                {
                    std::memcpy(end, "\xEF\xBF\xBD", 3);
                    text.remove_prefix(sequence.size);
                    end = Reserve(end + 3, QuotedRoom(text));
                    continue;
                }
                std::memcpy(end, text.data(), sequence.size);
                end += sequence.size;
                text.remove_prefix(sequence.size);
            } while (!text.empty() && static_cast<unsigned char>(text.front()) >= 0x80);
        }
        end = Reserve(end, QuotedRoom(text));
    }
    *end++ = '"';
    return end;
}

// -- LevelStack

void Stringer::LevelStack::Push(LevelState level)
{
    if (size_ < near_.size())
        near_[size_] = level;
    else
        far_.push_back(level);
    ++size_;
}

void Stringer::LevelStack::Pop() noexcept
{
    if (size_ > near_.size())
        far_.pop_back();
    --size_;
}

// -- Construction and output

Stringer::Stringer() noexcept = default;

Stringer::Stringer(std::unique_ptr<std::stringstream>&& stream) noexcept
    : stream_(std::move(stream)), writesThrough_(stream_ != nullptr)
{
}

Stringer::Stringer(const Stringer& other)
    : pending_(other.pending_), states_(other.states_), prettyPrint_(other.prettyPrint_)
{
    if (other.stream_ == nullptr)
        return;
    stream_ = std::make_unique<std::stringstream>(other.stream_->str());
    stream_->seekp(other.stream_->tellp());
}

Stringer& Stringer::operator=(const Stringer& other)
{
    if (this != &other)
        *this = Stringer(other);
    return *this;
}

Stringer::Stringer(Stringer&& other) noexcept : prettyPrint_(other.prettyPrint_)
{
    *this = std::move(other);
}

Stringer& Stringer::operator=(Stringer&& other) noexcept
{
    if (this == &other)
        return *this;
    stream_ = std::move(other.stream_);
    pending_ = std::move(other.pending_);
    states_ = std::exchange(other.states_, LevelStack());
    prettyPrint_ = other.prettyPrint_;
    writesThrough_ = std::exchange(other.writesThrough_, false);
    return *this;
}

Stringer::~Stringer() = default;

Stringer Stringer::PrettyStringer()
{
    Stringer pretty;
    pretty.prettyPrint_ = true;
    return pretty;
}

std::string Stringer::ToString() const
{
    if (stream_ == nullptr)
        return std::string(pending_.Text());
    return stream_->str().append(pending_.Text());
}

std::unique_ptr<std::stringstream> Stringer::TakeStream()
{
    WriteThrough();
    states_ = LevelStack();
    writesThrough_ = false;
    return std::move(stream_);
}

std::stringstream& Stringer::Stream()
{
    WriteThrough();
    writesThrough_ = true;
    return *stream_;
}

void Stringer::WriteThrough()
{
    if (stream_ == nullptr)
        stream_ = std::make_unique<std::stringstream>();
    stream_->write(pending_.Text().data(), static_cast<std::streamsize>(pending_.Text().size()));
    pending_.Clear();
}

// -- Checks

void Stringer::ThrowIfInvalidState(const char* operation, bool writesKey) const
{
    const char* state = nullptr;
    if (states_.Empty())
        state = writesKey ? "no object is open" : nullptr;
    else if (const auto& level = CurrentLevelState(); !level.isObject)
        state = writesKey ? "the innermost open level is an array" : nullptr;
    else if (level.needsValue == writesKey)
        state = writesKey ? "the last key awaits its value" : "the open object awaits a key";

    if (state != nullptr)
        throw InvalidStringerState(std::string("Stringer::") + operation + ": " + state);
}

void Stringer::ThrowIfInconsistent(const char* operation, bool closesObject) const
{
    const char* state = nullptr;
    if (states_.Empty())
        state = "nothing is open";
    else if (const auto& level = CurrentLevelState(); level.isObject != closesObject)
        state = closesObject ? "the innermost open level is an array" : "the innermost open level is an object";
    else if (level.needsValue)
        state = "the last key awaits its value";

    if (state != nullptr)
        throw InvalidStringerState(std::string("Stringer::") + operation + ": " + state);
}

// -- Items: composed behind the pending text, which they join only when they are complete

char* Stringer::NewLine(char* end, std::size_t levels) const noexcept
{
    if (!prettyPrint_)
        return end;
    *end++ = '\n';
    return Indent(end, levels);
}

char* Stringer::Indent(char* end, std::size_t levels) noexcept
{
    std::memset(end, ' ', 2 * levels);
    return end + 2 * levels;
}

// Makes room for `room` bytes and writes what stands before an item: nothing at the top level and after a key.
char* Stringer::BeginItem(std::size_t room)
{
    const auto layout = prettyPrint_ ? 2 + 2 * states_.Size() : 1;
    auto* end = pending_.Reserve(room + layout);
    if (states_.Empty() || CurrentLevelState().needsValue)
        return end;
    if (!CurrentLevelState().empty)
        *end++ = ',';
    return NewLine(end, states_.Size());
}

void Stringer::EndItem(const char* end, bool needsValue)
{
    pending_.End(end);
    if (!states_.Empty())
    {
        auto& level = states_.Top();
        level.empty = false;
        level.needsValue = needsValue;
    }
    if (writesThrough_)
        WriteThrough();
}

Stringer& Stringer::Open(const char* operation, bool isObject)
{
    ThrowIfInvalidState(operation);
    auto* end = BeginItem(1);
    *end++ = isObject ? '{' : '[';
    states_.Push(LevelState(true, isObject, false));
    pending_.End(end);
    if (writesThrough_)
        WriteThrough();
    return *this;
}

Stringer& Stringer::Close(const char* operation, bool isObject)
{
    ThrowIfInconsistent(operation, isObject);
    auto* end = pending_.Reserve(2 + 2 * states_.Size());
    if (!CurrentLevelState().empty)
        end = NewLine(end, states_.Size() - 1);
    *end++ = isObject ? '}' : ']';
    states_.Pop();
    EndItem(end, false); // the closed level is an item of the one around it
    return *this;
}

Stringer& Stringer::Literal(const char* operation, std::string_view text)
{
    ThrowIfInvalidState(operation);
    auto* end = BeginItem(text.size());
    EndItem(std::copy(text.begin(), text.end(), end), false);
    return *this;
}

Stringer& Stringer::Object()
{
    return Open("Object", true);
}
Stringer& Stringer::CloseObject()
{
    return Close("CloseObject", true);
}
Stringer& Stringer::Array()
{
    return Open("Array", false);
}
Stringer& Stringer::CloseArray()
{
    return Close("CloseArray", false);
}

Stringer& Stringer::Key(const char* key)
{
    return Key(NotNull(key, "Key"));
}

Stringer& Stringer::Key(std::string_view key)
{
    ThrowIfInvalidState("Key", true);
    auto* end = pending_.Quote(BeginItem(TextBuffer::QuotedRoom(key)), key);
    *end++ = ':';
    if (prettyPrint_)
        *end++ = ' ';
    EndItem(end, true);
    return *this;
}

Stringer& Stringer::Value(bool value)
{
    return Literal("Value", value ? "true" : "false");
}

Stringer& Stringer::Value(std::int32_t value)
{
    ThrowIfInvalidState("Value");
    constexpr std::size_t longest = 11; // "-2147483648"
    auto* end = BeginItem(longest);
    EndItem(std::to_chars(end, end + longest, value).ptr, false);
    return *this;
}

Stringer& Stringer::Value(double value)
{
    ThrowIfInvalidState("Value");
    if (!std::isfinite(value))
        throw std::invalid_argument("Stringer::Value: a JSON number is neither infinite nor NaN");
    constexpr std::size_t longest = 24; // "-2.2250738585072014e-308"
    auto* end = BeginItem(longest);
    EndItem(std::to_chars(end, end + longest, value).ptr, false);
    return *this;
}

Stringer& Stringer::Value(const char* value)
{
    return Value(NotNull(value, "Value"));
}

Stringer& Stringer::Value(std::string_view value)
{
    ThrowIfInvalidState("Value");
    EndItem(pending_.Quote(BeginItem(TextBuffer::QuotedRoom(value)), value), false);
    return *this;
}

Stringer& Stringer::NullValue()
{
    return Literal("NullValue", "null");
}

std::string Stringer::ToEscapedString(const char* text)
{
    const auto view = NotNull(text, "ToEscapedString");
    TextBuffer buffer;
    buffer.End(buffer.Quote(buffer.Reserve(TextBuffer::QuotedRoom(view)), view));
    return std::string(buffer.Text());
}

// -- Scopes

namespace
{

// Closes with `close` when a scope ends. While an exception unwinds the stack there may be a key without value or an
// inner level that is still open; a second exception would end the process.
template <typename Close>
void EndScope(int exceptionsAtStart, Close close)
{
    if (std::uncaught_exceptions() == exceptionsAtStart)
    {
        close();
        return;
    }
    try
    {
        close();
    }
    catch (const std::exception&)
    {
    }
}

} // namespace

Stringer::InternalObjectScope::InternalObjectScope(Stringer& stringer)
    : stringer_(stringer), exceptionsAtStart_(std::uncaught_exceptions())
{
    stringer_.Object();
}

Stringer::InternalObjectScope::~InternalObjectScope() noexcept(false)
{
    EndScope(exceptionsAtStart_, [this] { stringer_.CloseObject(); });
}

Stringer::InternalArrayScope::InternalArrayScope(Stringer& stringer)
    : stringer_(stringer), exceptionsAtStart_(std::uncaught_exceptions())
{
    stringer_.Array();
}

Stringer::InternalArrayScope::~InternalArrayScope() noexcept(false)
{
    EndScope(exceptionsAtStart_, [this] { stringer_.CloseArray(); });
}

Stringer::InternalObjectScope Stringer::ObjectScope()
{
    return InternalObjectScope(*this);
}

Stringer::InternalObjectScope Stringer::ObjectScope(const char* key)
{
    return InternalObjectScope(Key(key));
}

Stringer::InternalArrayScope Stringer::ArrayScope()
{
    return InternalArrayScope(*this);
}

Stringer::InternalArrayScope Stringer::ArrayScope(const char* key)
{
    return InternalArrayScope(Key(key));
}

} // namespace Qiv::Common::Serialization::Json
