#include <TarvonelJson/CheckCommand.h>

#include <TarvonelJson/Conversion.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <json/value.h>

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <vector>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Qiv::Common::Serialization::Json::Stringer;

namespace
{

/// A finding as it is printed; also a text that is no JSON and a document of no kind are findings here.
struct Entry
{
    SourceText::Position position;
    std::string pointer;
    std::string kind;
    std::string sentence;
    std::string readerMessage;
};

/// In the order of their places.
std::vector<Entry> EntriesOf(const SourceText& source)
{
    Json::Value document;
    if (const auto result = ParseText(source.text, document); !result)
        return {{result.Position(), "", "invalid-json", result.ErrorMessage(), ""}};
    if (!KindOf(document))
        return {{PositionOf(source.text, document.getOffsetStart()), "", "unknown-type", NoKindMessage(document), ""}};
    std::vector<Entry> entries;
    for (const auto& finding : InspectDocument(document))
    {
        entries.push_back({PositionOf(source.text, finding.offset), finding.pointer,
                           std::string(ToString(finding.kind)), finding.sentence, finding.readerMessage});
    }
    const auto place = [](const Entry& entry) { return std::tie(entry.position.line, entry.position.column); };
    std::stable_sort(entries.begin(), entries.end(),
                     [&](const Entry& left, const Entry& right) { return place(left) < place(right); });
    return entries;
}

std::string AsText(const SourceText& source, const Entry& entry)
{
    const bool isFatal = entry.kind == ToString(FindingKind::EndsProcess);
    return source.MessageStart(entry.position, entry.pointer) + (isFatal ? "FATAL: " : "") + entry.sentence + '\n';
}

std::string AsJson(const SourceText& source, const Entry& entry)
{
    const auto position = source.InFile(entry.position);
    Stringer json;
    json.Object().Key("file").Value(source.file);
    json.Key("line").Value(static_cast<std::int32_t>(position.line));
    json.Key("column").Value(static_cast<std::int32_t>(position.column));
    json.Key("pointer").Value(entry.pointer).Key("kind").Value(entry.kind).Key("sentence").Value(entry.sentence);
    if (!entry.readerMessage.empty())
        json.Key("readerMessage").Value(entry.readerMessage);
    json.CloseObject();
    return json.ToString();
}

} // namespace

CheckCommand::CheckCommand(CLI::App& program)
    : Command(program, "check", "Tell what is wrong with documents and what readers pass over silently",
              R"(Readers are lenient: they pass over members that they do not know, that have
another JSON type than they expect or a word that means nothing to them. Each such
finding is printed as

  FILE:LINE:COLUMN: POINTER: SENTENCE

with columns in bytes and the pointer to the value (RFC 6901), which is left out
when the finding is about the whole document. FATAL marks what ends the process
that reads the document. With --output json an array of objects is printed.

Examples:
  tarvonel-json check recorder.json
  tarvonel-json check --ndjson --output json server.ndjson

Exit status: 0 no finding, 1 findings, 2 wrong usage or an unreadable file.)")
{
    files_.AddTo(Arguments());
    Arguments()
        .add_option("--output", outputForm_, "Text for people (default) or json for programs")
        ->type_name("FORM")
        ->check(CLI::IsMember({"text", "json"}).description(""));
}

ExitStatus CheckCommand::Run(Output& output) const
{
    const bool isJson = outputForm_ == "json";
    bool isClean = true;
    const auto print = [&](const SourceText& source)
    {
        for (const auto& entry : EntriesOf(source))
        {
            if (isJson)
                output.Write(isClean ? "[\n " : ",\n ");
            output.Write(isJson ? AsJson(source, entry) : AsText(source, entry));
            isClean = false;
        }
    };
    const bool areAllRead = files_.ForEachDocument(output, print);
    if (isJson)
        output.Write(isClean ? "[]\n" : "\n]\n");
    if (!areAllRead)
        return ExitStatus::Usage;
    return isClean ? ExitStatus::Success : ExitStatus::Failure;
}

} // namespace TarvonelJson
