#include <FuzzInput.h>
#include <Json.h>

#include <Qiv/Common/Serialization/Json/InvalidStringerState.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

using namespace Fuzz;
using Qiv::Common::Serialization::Json::InvalidStringerState;
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

    void Value(double value);
    void Scope(bool isObject, const char* key);
    void Step(Input& input);

    Stringer writer;
    Model model;
    const std::stringstream* stream = nullptr; // the writer's own, once asked for
};

void Pair::Value(double value)
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

void Pair::Scope(bool isObject, const char* key)
{
    const bool isAllowed = key != nullptr ? model.TakesKey() : model.TakesValue();
    const auto fill = [&](auto&& scope)
    {
        Check(&scope.GetStringer() == &writer, "the scope knows its writer");
        writer.NullValue();
    };
    const bool hasRun =
        isObject ? Run(isAllowed,
                       [&]
                       {
                           auto scope = key != nullptr ? writer.ObjectScope(key) : writer.ObjectScope();
                           writer.Key("in");
                           fill(scope);
                       })
                 : Run(isAllowed, [&] { fill(key != nullptr ? writer.ArrayScope(key) : writer.ArrayScope()); });
    if (!hasRun)
        return;
    if (key != nullptr)
        model.Key(key);
    model.Open(isObject);
    if (isObject)
        model.Key("in");
    model.Value("null");
    model.Close();
}

void Pair::Step(Input& input)
{
    const auto value = [&](auto operation, const auto& text)
    {
        if (Run(model.TakesValue(), operation))
            model.Value(text());
    };
    const auto key = [&](std::string_view text, auto operation)
    {
        if (Run(model.TakesKey(), operation))
            model.Key(text);
    };

    switch (input.Byte() % 25)
    {
    case 0:
    case 1:
        if (model.Depth() < deepest && Run(model.TakesValue(), [&] { writer.Object(); }))
            model.Open(true);
        break;
    case 2:
    case 3:
        if (model.Depth() < deepest && Run(model.TakesValue(), [&] { writer.Array(); }))
            model.Open(false);
        break;
    case 4:
        if (Run(model.TakesClose(true), [&] { writer.CloseObject(); }))
            model.Close();
        break;
    case 5:
        if (Run(model.TakesClose(false), [&] { writer.CloseArray(); }))
            model.Close();
        break;
    case 6:
    case 7:
    {
        const std::string text(input.Text());
        key(text.c_str(), [&] { writer.Key(text.c_str()); });
        break;
    }
    case 8:
    {
        const std::string text(input.Text());
        key(text, [&] { writer.Key(text); });
        break;
    }
    case 9:
    {
        const ExactCopy text(input.Text());
        key(text.Text(), [&] { writer.Key(text.Text()); });
        break;
    }
    case 10:
    {
        const bool flag = input.Byte() % 2 != 0;
        value([&] { writer.Value(flag); }, [&] { return flag ? "true" : "false"; });
        break;
    }
    case 11:
    {
        const auto number = input.Number<std::int32_t>();
        value([&] { writer.Value(number); }, [&] { return std::to_string(number); });
        break;
    }
    case 12:
        Value(input.Number<double>());
        break;
    case 13:
        Value(static_cast<double>(input.Number<std::int16_t>()) / 8);
        break;
    case 14:
    {
        const std::string text(input.Text());
        const auto quoted = Quoted(text.c_str());
        Check(Stringer::ToEscapedString(text.c_str()) == quoted, "escaping", text, quoted);
        value([&] { writer.Value(text.c_str()); }, [&] { return quoted; });
        break;
    }
    case 15:
    {
        const std::string text(input.Text());
        value([&] { writer.Value(text); }, [&] { return Quoted(text); });
        break;
    }
    case 16:
    {
        const ExactCopy text(input.Text(input.Number<std::uint16_t>() % 2048)); // beyond the first piece of memory
        value([&] { writer.Value(text.Text()); }, [&] { return Quoted(text.Text()); });
        break;
    }
    case 17:
        value([&] { writer.NullValue(); }, [] { return "null"; });
        break;
    case 18:
        Scope(input.Byte() % 2 != 0, nullptr);
        break;
    case 19:
    {
        const std::string text(input.Text());
        Scope(text.size() % 2 != 0, text.c_str());
        break;
    }
    case 20:
        stream = &writer.Stream();
        CheckText();
        break;
    case 21:
        Check(writer.TakeStream()->str() == model.Text(), "the stream handed over has the text", model.Text());
        Forget();
        break;
    case 22:
        CheckText();
        break;
    case 23:
    {
        const ExactCopy name(input.Text());
        const ExactCopy text(input.Text());
        if (Run(model.TakesKey(), [&] { writer.Member(name.Text(), text.Text()); }))
        {
            model.Key(name.Text());
            model.Value(Quoted(text.Text()));
        }
        break;
    }
    default:
        try
        {
            static_cast<void>(input.Byte() % 2 != 0 ? writer.Key(static_cast<const char*>(nullptr))
                                                    : writer.Member("key", static_cast<const char*>(nullptr)));
            Check(false, "a null pointer is no text");
        }
        catch (const std::invalid_argument&)
        {
            CheckText();
        }
    }
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
        first.writer = Stringer(std::make_unique<std::stringstream>());
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
