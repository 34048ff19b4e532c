#include <TarvonelJson/ConvertCommand.h>

#include <TarvonelJson/Refusal.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>

#include <vector>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Documents::Layout;

ConvertCommand::ConvertCommand(CLI::App& program)
    : Command(program, "convert", "Read documents and write them in canonical form, one line each",
              R"(A document that cannot be read is reported on standard error with its place,
and so is one that would end the process of whoever reads it; the others are
converted all the same. How many members the readers skipped or replaced by a
default is told at the end; the command check shows them.

Examples:
  tarvonel-json convert node.json
  tarvonel-json convert --pretty recorder.json player.json
  tail -f channels.ndjson | tarvonel-json convert --ndjson)")
{
    files_.AddTo(Arguments());
    Arguments().add_flag("--pretty", isPretty_, "Indent the documents instead of writing one line each");
    Arguments().add_flag("--strict", isStrict_, "Refuse documents of which anything would be lost");
    Arguments().add_flag("-q,--quiet", isQuiet_, "Do not tell what was skipped or replaced, nor look for it");
}

ExitStatus ConvertCommand::Run(Output& output) const
{
    Losses losses;
    const auto status =
        files_.ForEachDocument(output, [&](const SourceText& source) { return Convert(source, output, losses); });
    losses.Report();
    return status;
}

ExitStatus ConvertCommand::Convert(const SourceText& source, Output& output, Losses& losses) const
{
    const bool looksForLosses = isStrict_ || !isQuiet_;
    std::vector<Finding> findings;
    ReadOptions options;
    options.limits = SourceText::Limits();
    options.findings = looksForLosses ? &findings : nullptr;
    const auto result = Documents::ReadAnyText(source.text, options);
    if (!result)
        return Report(source, WhyNotRead(source, result));
    const auto text = Documents::ToText(result.Entity(), isPretty_ ? Layout::Pretty : Layout::Compact);
    if (looksForLosses)
    {
        const auto timeCodes = CountLostTimeCodes(text);
        if (isStrict_ && (!findings.empty() || timeCodes > 0))
            return Report(source, RefusalOfLoss(source, findings));
        if (!isQuiet_)
            losses.Count(findings.size(), timeCodes, findings.size() < options.maximumFindings);
    }
    output.WriteJson(text);
    return ExitStatus::Success;
}

} // namespace TarvonelJson
