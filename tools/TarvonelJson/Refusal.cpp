#include <TarvonelJson/Refusal.h>

#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Printable.h>
#include <TarvonelJson/Suggestion.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
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
    return static_cast<bool>(ParseText(text.substr(0, offset), first));
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
    const bool needsHint = !source.isLine && IsSecondDocument(source.text, result.Position());
    return {result.Position(), result.Pointer(),
            result.ErrorMessage() + (needsHint ? "; with --ndjson each line is a document" : ""), ExitStatus::Trouble,
            "invalid-json"};
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

Refusal WhyNotRead(const SourceText& source)
{
    JsonObject document;
    if (const auto result = ParseText(source.text, document); !result)
        return NotJson(source, result);
    if (!KindOf(document))
        return UnknownType(source, document);
    const auto findings = InspectDocument(document);
    if (const auto* const fatal = FirstFatal(findings))
        return {PositionOf(source.text, fatal->offset), fatal->pointer, "refused: " + fatal->sentence};
    const auto result = Documents::ReadAny(document);
    const auto* const failure = FirstFailure(findings);
    return {PositionOf(source.text, failure != nullptr ? failure->offset : document.getOffsetStart()), result.Pointer(),
            result.ErrorMessage()};
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
