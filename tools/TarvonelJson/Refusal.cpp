#include <TarvonelJson/Refusal.h>

#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Printable.h>
#include <TarvonelJson/Suggestion.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <json/value.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Qiv::Common::Serialization::Json::JsonObject;

namespace
{

/// Whether a further document begins at the position, behind a whole one.
bool IsSecondDocument(std::string_view text, const TextPosition& position)
{
    std::size_t offset = 0;
    for (auto line = position.line; line > 1 && offset != std::string_view::npos; --line)
        offset = text.find('\n', offset) + 1;
    offset += position.column - 1;
    if (offset >= text.size() || (text[offset] != '{' && text[offset] != '['))
        return false;
    JsonObject first;
    return static_cast<bool>(ParseText(text.substr(0, offset), first, SourceText::Limits()));
}

const std::vector<std::string>& KnownTypes()
{
    static const std::vector<std::string> types = {
        "MediaInput", "MediaOutput", "Node", "SequenceOutput", "Speed", "BoundaryAbsolute", "BoundaryRelative"};
    return types;
}

std::string KnownTypesInWords()
{
    std::string words;
    for (const auto& type : KnownTypes())
        words += (words.empty() ? "" : &type == &KnownTypes().back() ? " or " : ", ") + type;
    return words;
}

} // namespace

Refusal NotJson(const SourceText& source, const TextResult& result)
{
    auto sentence = result.Sentence();
    // A further place that ends the sentence is one in the text.
    constexpr std::string_view at = " at 1:";
    const auto place = sentence.rfind(at);
    const bool endsWithPlace =
        place != std::string::npos && sentence.find_first_not_of("0123456789", place + at.size()) == std::string::npos;
    if (source.isLine && endsWithPlace)
        sentence.replace(place, at.size(), " at " + std::to_string(source.firstLine) + ':');
    if (!source.isLine && IsSecondDocument(source.text, result.Position()))
        sentence += "; with --ndjson each line is a document";
    return {result.Position(), result.Pointer(), sentence, ExitStatus::Trouble, "invalid-json"};
}

Refusal UnknownType(const SourceText& source, const JsonObject& document)
{
    constexpr std::string_view key = "_type";
    const auto* const type = document.isObject() ? document.find(key.data(), key.data() + key.size()) : nullptr;
    const auto expected = ": " + KnownTypesInWords() + " expected";
    Refusal refusal{PositionOf(source.text, document.getOffsetStart()), "", "no \"_type\"" + expected,
                    ExitStatus::Findings, "unknown-type"};
    if (type == nullptr)
        return refusal;
    refusal.position = PositionOf(source.text, type->getOffsetStart());
    refusal.pointer = "/_type";
    refusal.sentence = "is no string" + expected;
    if (type->isString())
    {
        const auto text = type->asString();
        refusal.sentence = "unknown \"_type\" \"" + Shortened(text) + "\"" + expected + Suggestion(text, KnownTypes());
    }
    return refusal;
}

Refusal WhyNotRead(const SourceText& source, const TextResult& result)
{
    JsonObject document;
    if (const auto parsed = ParseText(source.text, document, SourceText::Limits()); !parsed)
        return NotJson(source, parsed);
    if (!KindOf(document))
        return UnknownType(source, document);
    return {result.Position(), result.Pointer(), result.Sentence()};
}

Refusal RefusalOfLoss(const SourceText& source, const std::vector<Finding>& findings)
{
    if (findings.empty())
        return {{}, "", "a time code without date is written in a form that no reader takes (refused by --strict)"};
    const auto& first = findings.front();
    const auto more = findings.size() > 1 ? " for this and " + std::to_string(findings.size() - 1) + " more" : "";
    return {PositionOf(source.text, first.offset), first.pointer,
            first.sentence + " (refused by --strict" + more + ")"};
}

ExitStatus Report(const SourceText& source, const Refusal& refusal)
{
    Report(source.MessageStart(refusal.position, refusal.pointer), refusal.sentence);
    return refusal.status;
}

} // namespace TarvonelJson
