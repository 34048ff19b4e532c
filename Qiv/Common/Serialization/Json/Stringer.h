#pragma once

#include <Qiv/Common/Serialization/Export.h>
#include <Qiv/Common/Serialization/Json/QuotedKey.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace Qiv::Common::Serialization::Json
{

class Stringer;
QIV_COMMON_SERIALIZATION_EXPORT void AppendNanosecondsObject(Stringer& stringer, std::string_view type,
                                                             std::int64_t nanoseconds);

/// Writes JSON text (RFC 8259) piece by piece, without building a document first:
///
///     Stringer json;
///     json.Object().Key("id").Value("n1").Key("gbeIpAddresses").Array().Value("10.0.0.1").CloseArray().CloseObject();
///     json.ToString(); // {"id":"n1","gbeIpAddresses":["10.0.0.1"]}
///
/// Misuse (a value in an object without a key, a key outside an object or while a value is awaited, a close that does
/// not match the open level) throws `InvalidStringerState` and writes nothing. At the top level any number of values
/// may follow each other, each a JSON text of its own. Nothing is written between them, so `Value(1).Value(2)` gives
/// `12`; who writes several texts puts what separates them onto the stream: `json.Stream() << '\n'`.
///
/// Text: `"`, `\` and characters before U+0020 are escaped (`\b \f \n \r \t`, else `\u00xx` in lower case); all other
/// well-formed UTF-8 stands as it is; each maximal subpart of an ill-formed sequence becomes U+FFFD, so the result is
/// valid whatever the text holds. `const char*` text ends at its first NUL; in a `std::string` or `std::string_view` a
/// NUL is written as `\u0000`. A null pointer throws `std::invalid_argument`.
///
/// The pretty form indents by two blanks and writes `"key": value`, `{}` and `[]`. The global locale never matters.
/// One object serves one thread at a time.
class QIV_COMMON_SERIALIZATION_EXPORT Stringer
{
public:
    /// What is known of one open object or array.
    struct LevelState
    {
        LevelState() noexcept = default;
        LevelState(bool isEmpty, bool isAnObject, bool awaitsValue) noexcept
            : empty(isEmpty), isObject(isAnObject), needsValue(awaitsValue)
        {
        }

        bool empty = true;       ///< nothing has been written in this level yet
        bool isObject = false;   ///< an object; otherwise an array
        bool needsValue = false; ///< a key has been written and its value is awaited
    };

    /// Opens an object while it lives; see `ObjectScope`.
    class QIV_COMMON_SERIALIZATION_EXPORT InternalObjectScope
    {
    public:
        /// Opens an object on `stringer`, which must outlive the scope.
        explicit InternalObjectScope(Stringer& stringer);
        /// Closes the object. Throws like `CloseObject`, unless an exception is already on its way: then an object that
        /// can't be closed stays open.
        ~InternalObjectScope() noexcept(false);
        InternalObjectScope(const InternalObjectScope&) = delete;
        InternalObjectScope& operator=(const InternalObjectScope&) = delete;

        Stringer& GetStringer() const noexcept { return stringer_; }

    private:
        Stringer& stringer_;
        int exceptionsAtStart_;
    };

    /// Opens an array while it lives; see `ArrayScope`.
    class QIV_COMMON_SERIALIZATION_EXPORT InternalArrayScope
    {
    public:
        /// Opens an array on `stringer`, which must outlive the scope.
        explicit InternalArrayScope(Stringer& stringer);
        /// Closes the array; the same as for an object.
        ~InternalArrayScope() noexcept(false);
        InternalArrayScope(const InternalArrayScope&) = delete;
        InternalArrayScope& operator=(const InternalArrayScope&) = delete;

        Stringer& GetStringer() const noexcept { return stringer_; }

    private:
        Stringer& stringer_;
        int exceptionsAtStart_;
    };

    /// A compact writer on a fresh stream.
    Stringer() noexcept;

    /// A compact writer onto `stream`, which receives each piece of text as soon as it is written. A null pointer
    /// counts as a fresh stream.
    explicit Stringer(std::unique_ptr<std::stringstream>&& stream) noexcept;

    /// A deep copy: text, open levels and layout; the two go on independently.
    Stringer(const Stringer& other);
    Stringer& operator=(const Stringer& other);

    /// The moved-from writer is as a new one of the same layout.
    Stringer(Stringer&& other) noexcept;
    Stringer& operator=(Stringer&& other) noexcept;

    ~Stringer();

    /// A writer of the indented form on a fresh stream.
    static Stringer PrettyStringer();

    /// A copy of the text written so far, complete or not.
    std::string ToString() const;

    /// Hands over the stream with the text written so far. The writer is as a new one of the same layout afterwards.
    std::unique_ptr<std::stringstream> TakeStream();

    /// The stream with the text written so far. It stays the writer's own and receives each further piece of text as
    /// soon as it is written, whatever state reading has left it in.
    std::stringstream& Stream();

    /// Opens an object, as a value.
    Stringer& Object();
    /// Closes the innermost level, which must be an object that awaits no value.
    Stringer& CloseObject();
    /// Opens an array, as a value.
    Stringer& Array();
    /// Closes the innermost level, which must be an array.
    Stringer& CloseArray();

    /// Writes a member name; exactly one value must follow.
    Stringer& Key(const char* key) { return Key(NotNull(key, "Key")); }
    Stringer& Key(const std::string& key) { return Key(std::string_view(key)); }
    Stringer& Key(std::string_view key);
    Stringer& Key(const QuotedKey& key);

    Stringer& Value(bool value);
    Stringer& Value(std::int32_t value);
    /// No other whole number has a form: what may have 64 bits goes out as text, `Value(std::to_string(number))`, since
    /// many JSON libraries keep numbers to 53 bits only; what fits is cast to `std::int32_t`.
    template <typename Integer, std::enable_if_t<std::is_integral_v<Integer> && sizeof(Integer) >= 4, int> = 0>
    Stringer& Value(Integer value) = delete;
    /// The shortest form that reads back to the same number. NaN and infinities throw `std::invalid_argument`.
    Stringer& Value(double value);
    Stringer& Value(const char* value) { return Value(NotNull(value, "Value")); }
    Stringer& Value(const std::string& value) { return Value(std::string_view(value)); }
    Stringer& Value(std::string_view value);
    /// Another pointer is no truth value.
    template <typename Other, std::enable_if_t<!std::is_same_v<Other, char>, int> = 0>
    Stringer& Value(const Other* value) = delete;
    Stringer& NullValue();

    /// `Key(key).Value(value)` in one go, which is faster. After a failure neither has been written.
    Stringer& Member(const char* key, const char* value)
    {
        return Member(NotNull(key, "Key"), NotNull(value, "Value"));
    }
    Stringer& Member(std::string_view key, std::string_view value);
    Stringer& Member(const QuotedKey& key, std::string_view value);

    /// Opens an object, under `key` if it is given and not null, until the returned scope ends.
    [[nodiscard]] InternalObjectScope ObjectScope();
    [[nodiscard]] InternalObjectScope ObjectScope(const char* key);
    /// Opens an array, under `key` if it is given and not null, until the returned scope ends.
    [[nodiscard]] InternalArrayScope ArrayScope();
    [[nodiscard]] InternalArrayScope ArrayScope(const char* key);

    /// True when a key has been written in the innermost level and its value is awaited.
    bool AwaitsValue() const noexcept { return CurrentLevelState().needsValue; }

    /// The JSON string of a text: escaped as above, in quotes.
    static std::string ToEscapedString(const char* text);

private:
    friend void AppendNanosecondsObject(Stringer& stringer, std::string_view type, std::int64_t nanoseconds);

    using TextMember = std::pair<const QuotedKey&, std::string_view>;

    /// Growing text into whose free end an item is composed: `Reserve`, write through the pointer, `End`.
    class TextBuffer
    {
    public:
        TextBuffer() noexcept = default;
        TextBuffer(const TextBuffer& other);
        TextBuffer(TextBuffer&& other) noexcept;
        TextBuffer& operator=(TextBuffer other) noexcept;

        std::string_view Text() const noexcept { return {data_.get(), static_cast<std::size_t>(end_ - data_.get())}; }

        bool HasRoom(std::size_t room) const noexcept { return static_cast<std::size_t>(limit_ - end_) >= room; }
        char* Reserve(std::size_t room) { return Reserve(end_, room); }
        /// Makes room for `room` bytes behind `end` and keeps what is composed before it.
        char* Reserve(char* end, std::size_t room)
        {
            return static_cast<std::size_t>(limit_ - end) >= room ? end : Grow(end, room);
        }
        /// Writes `text` escaped and in quotes at `end`, where there must be room for `QuotedRoom(text)` bytes.
        /// Leaves room for `slack` bytes behind the end that it returns.
        char* Quote(char* end, std::string_view text);
        static constexpr std::size_t slack = 16;
        static std::size_t QuotedRoom(std::string_view text) noexcept { return text.size() + 2 * slack; }

        void End(char* end) noexcept { end_ = end; }
        void Clear() noexcept { end_ = data_.get(); }

    private:
        char* Grow(char* end, std::size_t room);
        char* QuoteWithEscapes(char* end, std::string_view text);

        struct Free
        {
            void operator()(char* data) const noexcept { std::free(data); }
        };

        std::unique_ptr<char, Free> data_; // from malloc, since realloc can grow a long text without copying it
        char* end_ = nullptr;
        char* limit_ = nullptr;
    };

    /// The levels around the innermost one. Of each only its kind needs to be kept: it is not empty, and when the
    /// level inside it is closed, it awaits no value.
    class OuterLevels
    {
    public:
        std::size_t Size() const noexcept { return size_; }
        void Push(bool isObject);
        bool Pop() noexcept;

    private:
        static constexpr std::size_t kindsPerWord = 64;

        // Bits, since a player takes 1.5 % more instructions to write with one character for each level.
        std::uint64_t kinds_ = 0;         // of the innermost levels: one bit each, the lowest for the innermost
        std::vector<std::uint64_t> rest_; // of those that have no place there, so almost always empty
        std::size_t size_ = 0;
    };

    static std::string_view NotNull(const char* text, const char* operation)
    {
        if (text == nullptr)
            ThrowNullPointer(operation);
        return text;
    }
    [[noreturn]] static void ThrowNullPointer(const char* operation);
    void ThrowIfInvalidState(const char* operation) const;
    void ThrowIfKeyIsInvalid() const;
    void ThrowIfInconsistent(const char* operation, bool closesObject) const;
    const LevelState& CurrentLevelState() const noexcept { return level_; }
    std::size_t Depth() const noexcept { return states_.Size(); }

    char* NewLine(char* end, std::size_t levels) const noexcept;
    static char* Indent(char* end, std::size_t levels) noexcept;
    char* BeginItem(std::size_t room);
    void EndItem(char* end, bool needsValue);
    static std::size_t RoomFor(std::string_view key) noexcept;
    static std::size_t RoomFor(const QuotedKey& key) noexcept;
    char* ComposeKey(char* end, std::string_view key);
    char* ComposeKey(char* end, const QuotedKey& key) noexcept;
    template <typename TKey>
    Stringer& WriteKey(const TKey& key);
    template <typename TKey>
    char* ComposeMember(char* end, const TKey& key, std::string_view value);
    template <typename TKey>
    Stringer& WriteMember(const TKey& key, std::string_view value);
    void ObjectOfTwo(const TextMember& first, const TextMember& second);
    void WriteThrough();
    Stringer& Open(const char* operation, bool isObject);
    Stringer& Close(const char* operation, bool isObject);
    bool CloseUnlessItMayThrow(bool isObject) noexcept;
    std::size_t ClosingRoom() const noexcept { return 2 + 2 * Depth(); }
    void WriteClosing(bool isObject);
    Stringer& Literal(const char* operation, std::string_view text);

    std::unique_ptr<std::stringstream> stream_; // made when it is first asked for; from then on others may look at it
    TextBuffer pending_; // text that no stream has received: nothing stays here when there is one
    LevelState level_;   // the innermost level; at the top level an array that stays empty
    OuterLevels states_;
    bool prettyPrint_ = false;
};

} // namespace Qiv::Common::Serialization::Json
