#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <Qiv/TimePoints/TimeCodeBuilder.h>

#include <cstddef>
#include <stdexcept>

namespace Qiv::TimePoints
{
namespace
{

enum class Form
{
    Wrong,
    RateTooLarge,
    Right
};

constexpr std::size_t dateLength = 11;  // "2016-03-21T"
constexpr std::size_t clockLength = 12; // "14:05:09:17@"

/// Reads numbers of a fixed length and remembers whether a character was not as it must be.
class FieldReader
{
public:
    /// The digit at `text`; one above `maximum` is wrong.
    unsigned Digit(const char* text, unsigned maximum) noexcept
    {
        const unsigned digit = static_cast<unsigned>(static_cast<unsigned char>(*text)) - '0'; // large below '0'
        isWrong_ |= digit > maximum;
        return digit;
    }
    std::int32_t TwoDigits(const char* text, unsigned maximumTens) noexcept
    {
        const unsigned tens = Digit(text, maximumTens);
        return static_cast<std::int32_t>(10 * tens + Digit(text + 1, 9));
    }
    void Expect(bool isAsItMustBe) noexcept { isWrong_ |= !isAsItMustBe; }
    bool IsWrong() const noexcept { return isWrong_; }

private:
    bool isWrong_ = false;
};

void ReadDate(const char* text, FieldReader& reader, TimeCodeBuilder& builder) noexcept
{
    reader.Expect(text[0] != '0');
    reader.Expect(text[4] == '-' && text[7] == '-' && text[10] == 'T');
    builder.Date(100 * reader.TwoDigits(text, 9) + reader.TwoDigits(text + 2, 9), reader.TwoDigits(text + 5, 1),
                 reader.TwoDigits(text + 8, 3));
}

void ReadClock(const char* text, FieldReader& reader, TimeCodeBuilder& builder) noexcept
{
    reader.Expect(text[2] == ':' && text[5] == ':' && (text[8] == ':' || text[8] == ';') && text[11] == '@');
    builder.ClockTime(reader.TwoDigits(text, 2), reader.TwoDigits(text + 3, 5), reader.TwoDigits(text + 6, 5),
                      reader.TwoDigits(text + 9, 9));
    builder.IsDrop(text[8] == ';');
}

/// Reads any text. `builder`, which is new, has all fields of the text when its form is right.
Form Read(std::string_view text, TimeCodeBuilder& builder) noexcept
{
    const bool hasDate = text.size() > 4 && text[4] == '-';
    const std::size_t fixedLength = (hasDate ? dateLength : 0) + clockLength;
    if (text.size() <= fixedLength)
        return Form::Wrong;

    FieldReader reader;
    if (hasDate)
        ReadDate(text.data(), reader, builder);
    ReadClock(text.data() + fixedLength - clockLength, reader, builder);
    if (reader.IsWrong())
        return Form::Wrong;

    std::int64_t rate = 0; // stays above INT32_MAX once it is, however many digits follow
    for (const char character : text.substr(fixedLength))
    {
        const unsigned digit = static_cast<unsigned>(static_cast<unsigned char>(character)) - '0';
        if (digit > 9)
            return Form::Wrong;
        if (rate <= INT32_MAX)
            rate = 10 * rate + digit;
    }
    if (rate > INT32_MAX)
        return Form::RateTooLarge;
    builder.Rate(Rate(rate));
    return Form::Right;
}

/// The same for callers that throw for a rate that is too large, before any other value is checked.
bool ReadOrThrow(const std::string& text, TimeCodeBuilder& builder)
{
    const Form form = Read(text, builder);
    if (form == Form::RateTooLarge)
        throw std::out_of_range("stoi"); // the whole text is that of std::stoi: callers know it
    return form == Form::Right;
}

} // namespace

QivTimeCodeParser::~QivTimeCodeParser() = default;

TimeCode QivTimeCodeParser::Parse(const std::string& text) const
{
    TimeCodeBuilder builder;
    if (!ReadOrThrow(text, builder))
        throw std::invalid_argument("QivTimeCodeParser the string '" + text + "' has not the expected format.");
    return builder.Build();
}

bool QivTimeCodeParser::IsStringFormatValid(const std::string& text) const
{
    TimeCodeBuilder builder;
    return ReadOrThrow(text, builder) && builder.IsValidToBuild();
}

std::pair<bool, TimeCode> QivTimeCodeParser::TryParse(const std::string& text) const noexcept
{
    try
    {
        return {true, Parse(text)};
    }
    catch (...)
    {
        return {false, TimeCode::Empty()};
    }
}

bool QivTimeCodeParser::TryRead(std::string_view text, TimeCode& timeCode) noexcept
{
    TimeCodeBuilder builder;
    return Read(text, builder) == Form::Right && builder.TryBuild(timeCode);
}

std::int32_t QivTimeCodeParser::StringToInt(const std::string& text) const
{
    return std::stoi(text);
}

} // namespace Qiv::TimePoints
