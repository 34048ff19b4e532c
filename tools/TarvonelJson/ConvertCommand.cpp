#include <TarvonelJson/ConvertCommand.h>

#include <TarvonelJson/Conversion.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <json/value.h>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;

ConvertCommand::ConvertCommand(CLI::App& program)
    : Command(program, "convert", "Read documents and write them in canonical form, one line each",
              R"(A document that cannot be read is reported on standard error with its place,
and so is one that would end the process of whoever reads it; the others are
converted all the same. What the readers pass over silently is what the command
check tells.

Examples:
  tarvonel-json convert node.json
  tarvonel-json convert --pretty recorder.json player.json
  tail -f channels.ndjson | tarvonel-json convert --ndjson

Exit status: 0 all documents were converted, 1 not all, 2 wrong usage.)")
{
    files_.AddTo(Arguments());
    Arguments().add_flag("--pretty", isPretty_, "Indent the documents instead of writing one line each");
}

ExitStatus ConvertCommand::Run(Output& output) const
{
    bool areAllConverted = true;
    const bool areAllRead = files_.ForEachDocument(output, [&](const SourceText& source)
                                                   { areAllConverted = Convert(source, output) && areAllConverted; });
    return areAllRead && areAllConverted ? ExitStatus::Success : ExitStatus::Failure;
}

bool ConvertCommand::Convert(const SourceText& source, Output& output) const
{
    Json::Value document;
    if (const auto result = ParseText(source.text, document); !result)
    {
        Report(source.MessageStart(result.Position(), "") + result.ErrorMessage());
        return false;
    }
    const auto start = [&](const Finding* finding)
    {
        return finding ? source.MessageStart(PositionOf(source.text, finding->offset), finding->pointer)
                       : source.MessageStart(PositionOf(source.text, document.getOffsetStart()), "");
    };
    const auto kind = KindOf(document);
    if (!kind)
    {
        Report(start(nullptr) + NoKindMessage(document));
        return false;
    }
    const auto findings = InspectDocument(document);
    if (const auto* const fatal = FirstFatal(findings))
    {
        Report(start(fatal) + "refused: " + fatal->sentence);
        return false;
    }
    auto stringer = MakeStringer(isPretty_);
    if (const auto result = ReadAndWrite(document, *kind, stringer); !result)
    {
        Report(start(FirstFailure(findings)) + result.ErrorMessage());
        return false;
    }
    output.Write(stringer.ToString() + '\n');
    return true;
}

} // namespace TarvonelJson
