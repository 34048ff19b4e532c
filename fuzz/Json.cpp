#include <Json.h>

#include <cstdint>

namespace Fuzz
{

Utf8Sequence FirstSequence(std::string_view text) noexcept
{
    const auto byte = [text](std::size_t i) { return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i])); };
    const auto lead = byte(0);
    if (lead < 0x80)
        return {1, true};
    const std::size_t size = (lead & 0xE0U) == 0xC0 ? 2 : (lead & 0xF0U) == 0xE0 ? 3 : (lead & 0xF8U) == 0xF0 ? 4 : 0;
    if (size == 0)
        return {1, false};

    // A beginning is good as long as some end makes it a scalar value that needs this many bytes.
    const std::uint32_t lowest = size == 2 ? 0x80 : size == 3 ? 0x800 : 0x10000;
    auto value = lead & (0x7FU >> size);
    for (std::size_t used = 1;; ++used)
    {
        const auto shift = 6 * (size - used);
        const auto low = value << shift;
        const auto high = low | ((1U << shift) - 1);
        if (high < lowest || low > 0x10FFFF || (low >= 0xD800 && high <= 0xDFFF))
            return {used == 1 ? 1 : used - 1, false};
        if (used == size)
            return {size, true};
        if (used == text.size() || (byte(used) & 0xC0U) != 0x80)
            return {used, false};
        value = value << 6 | (byte(used) & 0x3FU);
    }
}

std::string WellFormed(std::string_view text)
{
    std::string result;
    while (!text.empty())
    {
        const auto sequence = FirstSequence(text);
        result += sequence.isWellFormed ? text.substr(0, sequence.size) : "\xEF\xBF\xBD";
        text.remove_prefix(sequence.size);
    }
    return result;
}

namespace
{

class Validator
{
public:
    explicit Validator(std::string_view text) noexcept : text_(text) {}

    bool IsValid() noexcept { return Value(0) && (Blanks(), text_.empty()); }

private:
    static constexpr int deepest = 1000;

    bool Next(char character) noexcept
    {
        if (text_.empty() || text_.front() != character)
            return false;
        text_.remove_prefix(1);
        return true;
    }
    bool NextOf(std::string_view characters) noexcept
    {
        return !text_.empty() && characters.find(text_.front()) != characters.npos && Next(text_.front());
    }
    bool Next(std::string_view word) noexcept
    {
        if (text_.substr(0, word.size()) != word)
            return false;
        text_.remove_prefix(word.size());
        return true;
    }
    void Blanks() noexcept
    {
        while (NextOf(" \t\n\r"))
        {
        }
    }
    bool Digits() noexcept
    {
        constexpr std::string_view digits = "0123456789";
        if (!NextOf(digits))
            return false;
        while (NextOf(digits))
        {
        }
        return true;
    }

    bool Value(int depth) noexcept
    {
        Blanks();
        if (depth > deepest || text_.empty())
            return false;
        switch (text_.front())
        {
        case '{':
            return Items('{', '}', depth);
        case '[':
            return Items('[', ']', depth);
        case '"':
            return String();
        default:
            return Next("true") || Next("false") || Next("null") || Number();
        }
    }

    bool Items(char open, char close, int depth) noexcept
    {
        Next(open);
        Blanks();
        if (Next(close))
            return true;
        do
        {
            Blanks();
            if (open == '{' && !(String() && (Blanks(), Next(':'))))
                return false;
            if (!Value(depth + 1))
                return false;
            Blanks();
        } while (Next(','));
        return Next(close);
    }

    bool String() noexcept
    {
        if (!Next('"'))
            return false;
        while (!text_.empty() && text_.front() != '"')
        {
            if (static_cast<unsigned char>(text_.front()) < 0x20)
                return false;
            if (Next('\\'))
            {
                if (!Escape())
                    return false;
                continue;
            }
            const auto sequence = FirstSequence(text_);
            if (!sequence.isWellFormed)
                return false;
            text_.remove_prefix(sequence.size);
        }
        return Next('"');
    }

    bool Escape() noexcept
    {
        if (NextOf("\"\\/bfnrt"))
            return true;
        if (!Next('u'))
            return false;
        for (int digit = 0; digit < 4; ++digit)
            if (!NextOf("0123456789abcdefABCDEF"))
                return false;
        return true;
    }

    bool Number() noexcept
    {
        Next('-');
        if (!Next('0') && !Digits())
            return false;
        if (Next('.') && !Digits())
            return false;
        return !NextOf("eE") || (NextOf("+-"), Digits());
    }

    std::string_view text_;
};

} // namespace

bool IsStrictJson(std::string_view text) noexcept
{
    return Validator(text).IsValid();
}

} // namespace Fuzz
