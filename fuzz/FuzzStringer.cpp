#include <FuzzInput.h>
#include <Json.h>

#include <Qiv/Common/Serialization/Json/InvalidStringerState.h>
#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/Common/Serialization/Json/QuotedKey.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <utility>
#include <vector>

using namespace Fuzz;
using Qiv::Common::Serialization::Json::InvalidStringerState;
using Qiv::Common::Serialization::Json::QuotedKey;
using Qiv::Common::Serialization::Json::Stringer;

namespace
{

constexpr std::size_t deepest = 80; // keeps the indented form small

std::string Quoted(std::string_view text)
{
    static const std::string_view shortEscapes = "\"\"\\\\\bb\ff\nn\rr\tt";
    std::string result = "\"";
    for (const char character : WellFormed(text))
    {
        std::size_t escape = 0;
        while (escape < shortEscapes.size() && shortEscapes[escape] != character)
            escape += 2;
        char code[7] = {};
        if (escape < shortEscapes.size())
            (result += '\\') += shortEscapes[escape + 1];
        else if (static_cast<unsigned char>(character) < 0x20)
        {
            std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(character));
            result += code;
        }
        else
            result += character;
    }
    return result += '"';
}

/// What a writer may do and what its text is then: a plain grammar of JSON.
class Model
{
public:
    explicit Model(bool isPretty) : isPretty_(isPretty) {}

    bool TakesValue() const { return levels_.empty() || !levels_.back().isObject || levels_.back().hasKey; }
    bool TakesKey() const { return !levels_.empty() && levels_.back().isObject && !levels_.back().hasKey; }
    bool TakesClose(bool isObject) const
    {
        return !levels_.empty() && levels_.back().isObject == isObject && !levels_.back().hasKey;
    }
    bool AwaitsValue() const { return !levels_.empty() && levels_.back().hasKey; }
    std::size_t Depth() const { return levels_.size(); }
    const std::string& Text() const { return text_; }

    void Key(std::string_view key)
    {
        Separate();
        text_ += Quoted(key) + (isPretty_ ? ": " : ":");
        levels_.back().hasKey = true;
    }
    void Value(std::string_view text)
    {
        Begin();
        text_ += text;
        End();
    }
    void Open(bool isObject)
    {
        Begin();
        text_ += isObject ? '{' : '[';
        levels_.push_back({isObject, false, true});
    }
    void Close()
    {
        const auto level = levels_.back();
        levels_.pop_back();
        if (!level.isEmpty)
            NewLine();
        text_ += level.isObject ? '}' : ']';
        End();
    }
    /// After the text has been handed over.
    void Reset() { *this = Model(isPretty_); }

private:
    struct Level
    {
        bool isObject;
        bool hasKey;
        bool isEmpty;
    };

    void NewLine()
    {
        if (isPretty_)
            (text_ += '\n').append(2 * levels_.size(), ' ');
    }
    void Separate()
    {
        if (!levels_.back().isEmpty)
            text_ += ',';
        levels_.back().isEmpty = false;
        NewLine();
    }
    void Begin()
    {
        if (levels_.empty())
            start_ = text_.size();
        else if (!levels_.back().hasKey)
            Separate();
    }
    void End()
    {
        if (levels_.empty())
            Check(IsStrictJson(std::string_view(text_).substr(start_)), "the model writes JSON", text_);
        else
            levels_.back().hasKey = false;
    }

    bool isPretty_;
    std::string text_;
    std::size_t start_ = 0; // of the last value of the top level
    std::vector<Level> levels_;
};

/// A writer and what is known of it.
struct Pair
{
    explicit Pair(bool isPretty) : writer(isPretty ? Stringer::PrettyStringer() : Stringer()), model(isPretty) {}

    void CheckText() const
    {
        const auto text = writer.ToString();
        Check(text == model.Text(), "the text is that of the model", text, model.Text());
        Check(writer.AwaitsValue() == model.AwaitsValue(), "a value is awaited after a key", text);
        Check(stream == nullptr || stream->str() == text, "a stream once asked for has all the text", text);
    }

    void Forget()
    {
        model.Reset();
        stream = nullptr;
    }

    /// Runs an operation of the writer, which must throw unless `isAllowed`; true when it did not.
    template <typename Operation>
    bool Run(bool isAllowed, Operation operation)
    {
        try
        {
            operation();
        }
        catch (const InvalidStringerState& error)
        {
            Check(!isAllowed, "allowed operations succeed", error.what(), model.Text());
            CheckText();
            return false;
        }
        Check(isAllowed, "forbidden operations throw", model.Text());
        return true;
    }

    /// Writes a value by `operation`, whose text is then `text`.
    template <typename Operation>
    void Value(const std::string& text, Operation operation)
    {
        if (Run(model.TakesValue(), operation))
            model.Value(text);
    }
    template <typename Operation>
    void Key(std::string_view text, Operation operation)
    {
        if (Run(model.TakesKey(), operation))
            model.Key(text);
    }

    void Number(double value);
    void Scope(bool isObject, const char* key, unsigned ending);
    void Step(Input& input);

    Stringer writer;
    Model model;
    const std::stringstream* stream = nullptr; // the writer's own, once asked for
};

void Pair::Number(double value)
{
    if (!std::isfinite(value))
    {
        try
        {
            Run(model.TakesValue(), [&] { writer.Value(value); });
            Check(!model.TakesValue(), "numbers are finite", model.Text());
        }
        catch (const std::invalid_argument&)
        {
            CheckText();
        }
        return;
    }
    if (!Run(model.TakesValue(), [&] { writer.Value(value); }))
        return;
    // The digits are free, as long as they read back; so the writer's own are taken over.
    Stringer alone;
    alone.Value(value);
    const auto digits = alone.ToString();
    const double again = std::strtod(digits.c_str(), nullptr);
    Check(again == value && std::signbit(again) == std::signbit(value) && digits.size() <= 24, "the number reads back",
          digits);
    model.Value(digits);
}

/// Writes through a scope that ends by itself or by an exception, with everything in it closed or not.
void Pair::Scope(bool isObject, const char* key, unsigned ending)
{
    struct Unwinding
    {
    };
    const bool leavesOpen = (ending & 1U) != 0 && model.Depth() + 2 < deepest;
    const bool unwinds = (ending & 2U) != 0;
    const bool hasArgument = key != nullptr || (ending & 4U) != 0;
    const auto fill = [&](auto&& scope)
    {
        Check(&scope.GetStringer() == &writer, "the scope knows its writer");
        if (isObject)
            writer.Key("in");
        if (!leavesOpen)
            writer.NullValue();
        else if (!isObject)
            writer.Object();
        if (unwinds)
            throw Unwinding();
    };
    const auto use = [&]
    {
        if (isObject)
            fill(hasArgument ? writer.ObjectScope(key) : writer.ObjectScope());
        else
            fill(hasArgument ? writer.ArrayScope(key) : writer.ArrayScope());
    };

    if (!(key != nullptr ? model.TakesKey() : model.TakesValue()))
    {
        Run(false, use);
        return;
    }
    bool hasEnded = false;
    try
    {
        use();
        hasEnded = true;
    }
    catch (const InvalidStringerState& error)
    {
        Check(leavesOpen && !unwinds, "a scope ends unless something in it is open", error.what(), model.Text());
    }
    catch (const Unwinding&)
    {
        Check(unwinds, "exceptions pass through a scope");
    }
    Check(hasEnded == !(leavesOpen || unwinds), "a scope does not end quietly with something open", model.Text());

    if (key != nullptr)
        model.Key(key);
    model.Open(isObject);
    if (isObject)
        model.Key("in");
    if (!leavesOpen)
    {
        model.Value("null");
        model.Close();
    }
    else if (!isObject)
        model.Open(true);
    CheckText();
}

// -- The steps, each an operation with what the input says

void OpenObject(Pair& pair, Input&)
{
    if (pair.model.Depth() < deepest && pair.Run(pair.model.TakesValue(), [&] { pair.writer.Object(); }))
        pair.model.Open(true);
}

void OpenArray(Pair& pair, Input&)
{
    if (pair.model.Depth() < deepest && pair.Run(pair.model.TakesValue(), [&] { pair.writer.Array(); }))
        pair.model.Open(false);
}

void CloseObject(Pair& pair, Input&)
{
    if (pair.Run(pair.model.TakesClose(true), [&] { pair.writer.CloseObject(); }))
        pair.model.Close();
}

void CloseArray(Pair& pair, Input&)
{
    if (pair.Run(pair.model.TakesClose(false), [&] { pair.writer.CloseArray(); }))
        pair.model.Close();
}

void KeyFromCharacters(Pair& pair, Input& input)
{
    const std::string text(input.Text());
    pair.Key(text.c_str(), [&] { pair.writer.Key(text.c_str()); });
}

void KeyFromString(Pair& pair, Input& input)
{
    const std::string text(input.Text());
    pair.Key(text, [&] { pair.writer.Key(text); });
}

void KeyFromView(Pair& pair, Input& input)
{
    const ExactCopy text(input.Text());
    pair.Key(text.Text(), [&] { pair.writer.Key(text.Text()); });
}

void Truth(Pair& pair, Input& input)
{
    const bool flag = input.Byte() % 2 != 0;
    pair.Value(flag ? "true" : "false", [&] { pair.writer.Value(flag); });
}

void WholeNumber(Pair& pair, Input& input)
{
    const auto number = input.Number<std::int32_t>();
    pair.Value(std::to_string(number), [&] { pair.writer.Value(number); });
}

void AnyNumber(Pair& pair, Input& input)
{
    pair.Number(input.Number<double>());
}

void SmallFraction(Pair& pair, Input& input)
{
    pair.Number(static_cast<double>(input.Number<std::int16_t>()) / 8);
}

void TextFromCharacters(Pair& pair, Input& input)
{
    const std::string text(input.Text());
    const auto quoted = Quoted(text.c_str());
    Check(Stringer::ToEscapedString(text.c_str()) == quoted, "escaping", text, quoted);
    pair.Value(quoted, [&] { pair.writer.Value(text.c_str()); });
}

void TextFromString(Pair& pair, Input& input)
{
    const std::string text(input.Text());
    pair.Value(Quoted(text), [&] { pair.writer.Value(text); });
}

void LongTextFromView(Pair& pair, Input& input)
{
    const ExactCopy text(input.Text(input.Number<std::uint16_t>() % 2048)); // beyond the first piece of memory
    pair.Value(Quoted(text.Text()), [&] { pair.writer.Value(text.Text()); });
}

void Null(Pair& pair, Input&)
{
    pair.Value("null", [&] { pair.writer.NullValue(); });
}

void ScopeWithoutKey(Pair& pair, Input& input)
{
    const unsigned flags = input.Byte();
    pair.Scope((flags & 1U) != 0, nullptr, flags >> 1U);
}

void ScopeWithKey(Pair& pair, Input& input)
{
    const std::string text(input.Text());
    pair.Scope(text.size() % 2 != 0, text.c_str(), input.Byte());
}

void AskForStream(Pair& pair, Input&)
{
    pair.stream = &pair.writer.Stream();
    pair.CheckText();
}

void TakeStream(Pair& pair, Input&)
{
    Check(pair.writer.TakeStream()->str() == pair.model.Text(), "the stream handed over has the text",
          pair.model.Text());
    pair.Forget();
}

void Compare(Pair& pair, Input&)
{
    pair.CheckText();
}

void Member(Pair& pair, Input& input)
{
    const ExactCopy name(input.Text());
    const ExactCopy text(input.Text());
    const bool isPlain = name.Text().size() <= 28 && std::all_of(name.Text().begin(), name.Text().end(),
                                                                 [](char character) {
                                                                     return character >= ' ' && character <= '~' &&
                                                                            character != '"' && character != '\\';
                                                                 });
    const auto write = [&]
    {
        if (isPlain)
            pair.writer.Member(QuotedKey(name.Text()), text.Text());
        else
            pair.writer.Member(name.Text(), text.Text());
    };
    if (!pair.Run(pair.model.TakesKey(), write))
        return;
    pair.model.Key(name.Text());
    pair.model.Value(Quoted(text.Text()));
}

void Nanoseconds(Pair& pair, Input& input)
{
    const ExactCopy type(input.Text());
    const auto number = input.Number<std::int64_t>();
    if (!pair.Run(pair.model.TakesValue(), [&] { AppendNanosecondsObject(pair.writer, type.Text(), number); }))
        return;
    pair.model.Open(true);
    pair.model.Key("_type");
    pair.model.Value(Quoted(type.Text()));
    pair.model.Key("value");
    pair.model.Value('"' + std::to_string(number) + '"');
    pair.model.Close();
}

void NullPointer(Pair& pair, Input& input)
{
    const char* const null = nullptr;
    const std::function<void()> operations[] = {
        [&] { pair.writer.Key(null); }, [&] { pair.writer.Value(null); }, [&] { pair.writer.Member(null, "value"); },
        [&] { pair.writer.Member("key", null); }, [&] { Stringer::ToEscapedString(null); }};
    try
    {
        operations[input.Byte() % std::size(operations)]();
        Check(false, "a null pointer is no text");
    }
    catch (const std::invalid_argument&)
    {
        pair.CheckText();
    }
}

void Pair::Step(Input& input)
{
    // The kept inputs name a step by its place. What leads on stands twice.
    static constexpr void (*steps[])(Pair&, Input&) = {OpenObject,
                                                       OpenObject,
                                                       OpenArray,
                                                       OpenArray,
                                                       CloseObject,
                                                       CloseArray,
                                                       KeyFromCharacters,
                                                       KeyFromCharacters,
                                                       KeyFromString,
                                                       KeyFromView,
                                                       Truth,
                                                       WholeNumber,
                                                       AnyNumber,
                                                       SmallFraction,
                                                       TextFromCharacters,
                                                       TextFromString,
                                                       LongTextFromView,
                                                       Null,
                                                       ScopeWithoutKey,
                                                       ScopeWithKey,
                                                       AskForStream,
                                                       TakeStream,
                                                       Compare,
                                                       Member,
                                                       Nanoseconds,
                                                       NullPointer};
    steps[input.Byte() % std::size(steps)](*this, input);
}

} // namespace

/// Any sequence of operations on two writers, copied and moved to and fro, against a model of valid JSON.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const auto flags = input.Byte();
    Pair first((flags & 1U) != 0);
    Pair second((flags & 2U) != 0);
    if ((flags & 4U) != 0)
    {
        first.writer = Stringer((flags & 8U) != 0 ? nullptr : std::make_unique<std::stringstream>());
        first.model = Model(false);
    }
    while (!input.IsEmpty())
    {
        const auto what = input.Byte();
        if (what < 0xE0)
        {
            (what % 4 == 3 ? second : first).Step(input);
            continue;
        }
        switch (what % 8)
        {
        case 0:
            second = first;
            second.stream = nullptr;
            break;
        case 1:
            first = Pair(second);
            first.stream = nullptr;
            break;
        case 2:
            second = std::move(first);
            first.Forget();
            break;
        case 3:
        {
            Pair moved(std::move(second));
            second.Forget();
            second.CheckText();
            first = std::move(moved);
            break;
        }
        case 4:
            std::swap(first, second);
            break;
        case 5:
        {
            auto& self = first;
            first = self;
            first.writer = std::move(self.writer);
            break;
        }
        default:
            first.CheckText();
            second.CheckText();
        }
    }
    first.CheckText();
    second.CheckText();
    return 0;
}
