#include <TarvonelJson/CheckCommand.h>

#include <TarvonelJson/CheckedFinding.h>
#include <TarvonelJson/FindingCounts.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <vector>

namespace TarvonelJson
{

namespace
{

constexpr std::size_t mostFindings = 1000;

const std::map<std::string, Level> levels = {
    {"fatal", Level::Fatal}, {"failure", Level::Failure}, {"skipped", Level::Skipped}, {"any", Level::Any}};

ExitStatus StatusOf(const std::vector<CheckedFinding>& findings, Level failOn)
{
    auto worst = ExitStatus::Success;
    for (const auto& finding : findings)
    {
        if (finding.level == Level::NotJson)
            return ExitStatus::Trouble;
        if (finding.level >= failOn)
            worst = ExitStatus::Findings;
    }
    return worst;
}

/// Leaves the first ones and a last one that tells how many there are more.
void CutFindings(std::vector<CheckedFinding>& findings)
{
    if (findings.size() <= mostFindings)
        return;
    const auto rest = findings.size() - mostFindings;
    findings.resize(mostFindings);
    findings.push_back({findings.back().position, "", "more",
                        "and " + std::to_string(rest) + " more, which --all prints", "", Level::Any, 0});
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
that reads the document. A line has at most 1,000 bytes: long names and values are
cut, and what could steer a terminal is escaped. With --output json an array of
objects is printed in which nothing is cut, or one object with --summary.

Levels, each with those before it:
  fatal      ends the process that reads the document
  failure    readers refuse the document
  skipped    a member is skipped or replaced by a default
  any        a known member is ignored, or is written in a form that another
             conversion changes

Examples:
  tarvonel-json check recorder.json
  tarvonel-json check --ndjson --output json server.ndjson
  tarvonel-json check --fail-on failure --quiet *.json && deploy)")
{
    files_.AddTo(Arguments());
    Arguments()
        .add_option("--output", outputForm_, "Text for people (default) or json for programs")
        ->type_name("FORM")
        ->check(CLI::IsMember({"text", "json"}).description(""));
    Arguments()
        .add_option("--fail-on", failOn_, "The level from which on findings set exit status 1; any by default")
        ->type_name("LEVEL")
        ->check(CLI::IsMember({"fatal", "failure", "skipped", "any"}).description(""));
    Arguments().add_flag("-q,--quiet", isQuiet_, "Print no finding, only set the exit status");
    Arguments().add_flag("--summary", isSummary_, "Print counts by file and by kind instead of findings");
    Arguments().add_flag("--all", printsAll_, "Print also what goes beyond 1,000 findings in a document");
}

ExitStatus CheckCommand::Run(Output& output) const
{
    const bool isJson = outputForm_ == "json";
    const bool printsFindings = !isQuiet_ && !isSummary_;
    const auto failOn = levels.at(failOn_);
    bool isFirst = true;
    FindingCounts counts;
    const auto status = files_.ForEachDocument(
        output,
        [&](const SourceText& source)
        {
            auto findings = CheckDocument(source);
            const auto statusOfDocument = StatusOf(findings, failOn);
            if (isSummary_)
                counts.Count(source, findings);
            if (!printsFindings)
                return statusOfDocument;
            if (!printsAll_)
                CutFindings(findings);
            for (const auto& finding : findings)
            {
                if (isJson)
                    output.Write(isFirst ? "[\n " : ",\n ");
                output.Write(isJson ? AsJson(source, finding) : AsText(source, finding, output.IsColoured()));
                isFirst = false;
            }
            return statusOfDocument;
        });
    if (printsFindings && isJson)
        output.Write(isFirst ? "[]\n" : "\n]\n");
    if (isSummary_ && !isQuiet_)
        output.Write(isJson ? counts.AsJson() : counts.AsText());
    return status;
}

} // namespace TarvonelJson
