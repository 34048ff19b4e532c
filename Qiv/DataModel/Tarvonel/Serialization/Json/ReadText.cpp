#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/ReadWhole.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Refusal.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>

#include <json/reader.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

using Common::Serialization::Json::JsonObject;

namespace
{

// Whether any document that is read as this kind can. An inspection takes more than twice as long as the reading.
bool CanEndTheProcess(DocumentKind kind)
{
    return kind == DocumentKind::MediaOutput || kind == DocumentKind::Boundary;
}

// Finds what jsoncpp lets through, as some comments, and what it does not tell the place of, as deep nesting. Whatever
// else is wrong is left to it.
TextResult CheckText(std::string_view text)
{
    const auto failure = [text](const char* message, std::size_t offset)
    { return TextResult(message, PositionOf(text, static_cast<std::ptrdiff_t>(offset))); };

    if (text.substr(0, 3) == "\xEF\xBB\xBF")
        return failure("a byte order mark may not stand before JSON", 0);
    const auto start = text.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos)
        return failure("the text is empty", text.size());
    if (text[start] != '{' && text[start] != '[')
        return failure("a document is an object or an array", start);

    int depth = 0;
    bool isInString = false;
    for (auto i = start; i < text.size(); ++i)
    {
        const auto character = text[i];
        if (character == '"')
            isInString = !isInString;
        else if (isInString && static_cast<unsigned char>(character) < 0x20)
            return failure("a control character may not stand in a string", i);
        else if (isInString)
            i += character == '\\' ? 1 : 0;
        else if (character == '/')
            return failure("a comment may not stand in JSON", i);
        else if (character == '{' || character == '[')
            ++depth;
        else if (character == '}' || character == ']')
            --depth;
        if (depth > maximumTextDepth)
            return failure("objects and arrays are nested too deeply", i);
    }
    return {};
}

// Takes "* Line 3, Column 14\n  Missing ',' or '}' in object declaration\nSee Line ..." apart: jsoncpp tells the place
// in no other way.
TextResult FirstParseError(std::string_view errors)
{
    const auto numberAfter = [&errors](std::string_view word)
    {
        std::size_t number = 1;
        const auto start = errors.find(word);
        if (start != std::string_view::npos)
        {
            errors.remove_prefix(start + word.size());
            std::from_chars(errors.data(), errors.data() + errors.size(), number);
        }
        return number;
    };
    TextPosition position;
    position.line = numberAfter("Line ");
    position.column = numberAfter("Column ");
    errors.remove_prefix(std::min(errors.find("\n  "), errors.size()));
    errors = errors.substr(std::min<std::size_t>(3, errors.size()));
    auto message = std::string(errors.substr(0, errors.find('\n')));
    // What jsoncpp says of 1e999, too.
    if (const auto end = message.rfind(" is not a number."); end != std::string::npos)
        message.replace(end, std::string::npos, " is no JSON number, or too large for one of 64 bits");
    return {std::move(message), position};
}

// Kept, since making its settings takes a quarter of the time of parsing a channel's text; and never destroyed, so that
// texts can still be read while the process ends.
const ::Json::CharReaderBuilder& StrictReaders()
{
    static const auto& builder = *[]
    {
        auto strict = std::make_unique<::Json::CharReaderBuilder>();
        ::Json::CharReaderBuilder::strictMode(&strict->settings_);
        return strict.release();
    }();
    return builder;
}

TextResult FailureAt(std::string_view text, const Finding& finding, std::string message)
{
    return {std::move(message), PositionOf(text, finding.offset), finding.pointer};
}

TextResult Read(std::string_view text, const ReadTarget& target, Details::ReadMode mode, const ReadOptions& options)
{
    if (options.findings != nullptr)
        options.findings->clear();
    JsonObject json;
    if (auto result = ParseText(text, json); !result)
        return result;

    const auto kind = Details::KindOf(target);
    if (auto refusal = Details::RefusalOf(json, kind, options, text); !refusal)
        return refusal;
    if (CanEndTheProcess(kind))
    {
        const auto findings = InspectDocument(json, kind);
        if (const auto* const fatal = FirstFatal(findings))
            return FailureAt(text, *fatal, fatal->sentence);
    }
    const auto result = Details::ReadWhole(json, target, mode);
    if (result)
        return {};
    const auto findings = InspectDocument(json, kind);
    const auto* const announced = FirstFailure(findings);
    return FailureAt(text, announced != nullptr ? *announced : Finding(), result.ErrorMessage());
}

} // namespace

TextResult ParseText(std::string_view text, JsonObject& json)
{
    json = JsonObject();
    if (auto result = CheckText(text); !result)
        return result;

    // To tell the place of an error, jsoncpp looks behind a carriage return, also where the text ends with it.
    const auto terminated = text.back() == '\r' ? std::string(text) : std::string();
    if (!terminated.empty())
        text = terminated;

    const std::unique_ptr<::Json::CharReader> reader(StrictReaders().newCharReader());
    std::string errors;
    JsonObject parsed;
    try
    {
        if (!reader->parse(text.data(), text.data() + text.size(), &parsed, &errors))
            return FirstParseError(errors);
    }
    catch (const ::Json::Exception& exception)
    {
        return {exception.what(), TextPosition()};
    }
    json.swap(parsed);
    return {};
}

TextResult MergeText(std::string_view text, ReadTarget target)
{
    return MergeText(text, target, ReadOptions());
}

TextResult MergeText(std::string_view text, ReadTarget target, const ReadOptions& options)
{
    return Read(text, target, Details::ReadMode::Merge, options);
}

TextResult ReadSnapshotText(std::string_view text, ReadTarget target)
{
    return ReadSnapshotText(text, target, ReadOptions());
}

TextResult ReadSnapshotText(std::string_view text, ReadTarget target, const ReadOptions& options)
{
    return Read(text, target, Details::ReadMode::Snapshot, options);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
