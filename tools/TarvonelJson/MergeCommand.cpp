#include <TarvonelJson/MergeCommand.h>

#include <TarvonelJson/MergeLines.h>
#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Printable.h>
#include <TarvonelJson/Refusal.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/Clone.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <json/value.h>

#include <string_view>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Documents::Layout;

namespace
{

/// Reads the first document into a new channel, which stays null when it is none of a channel.
TextResult ReadFirst(std::string_view text, const ReadOptions& options, std::unique_ptr<MediaIO>& channel)
{
    const auto result = Documents::ReadAnyText(text, options);
    if (const auto* const read = result ? Documents::ChannelOf(result.Entity()) : nullptr)
        channel = Channels::Clone(*read);
    return static_cast<const TextResult&>(result);
}

bool IsAnother(std::string_view identifier, const std::string& expected)
{
    return !expected.empty() && !identifier.empty() && identifier != expected;
}

/// Of a document that has not been merged, as `result` says unless it is of a kind or of a channel that is not meant.
Refusal WhyNotMerged(const SourceText& source, const TextResult& result, bool isFirst, const std::string& expected)
{
    Json::Value document;
    static_cast<void>(ParseText(source.text, document, SourceText::Limits())); // null when that fails
    const auto kind = KindOf(document);
    if (isFirst && kind && kind != DocumentKind::MediaInput && kind != DocumentKind::MediaOutput)
        return {PositionOf(source.text, document.getOffsetStart()), "",
                "only channels can be merged: MediaInput or MediaOutput expected"};
    if (IsAnother(IdOf(document), expected))
        return {PositionOf(source.text, document["id"].getOffsetStart()), "/id",
                "\"" + Shortened(IdOf(document)) + "\" is another identifier than \"" + Shortened(expected) +
                    "\"; --any-id lets it become that of the result"};
    return WhyNotRead(source, result);
}

} // namespace

MergeCommand::MergeCommand(CLI::App& program)
    : Command(program, "merge", "Apply updates to a recorder or player channel and write the result",
              R"(Members that an update does not have keep their values. All updates are applied,
in the order given, or nothing is written.

With --ndjson all lines of all files are applied, in order, to channels and nodes by
their identifiers, and the state that results is written, a line each. A line that
is refused is told and changes nothing; a summary follows on standard error. The
memory needed depends on the state, not on the number of lines.

Examples:
  tarvonel-json merge recorder.json recorder-update.json
  tarvonel-json merge --ndjson server.ndjson updates.ndjson
  receive-update | tarvonel-json merge --pretty player.json -)")
{
    Arguments().add_option("BASE", base_, "The channel; - is standard input")->required()->type_name("");
    Arguments().add_option("UPDATE", updates_, "Documents to apply to it, of the same kind")->type_name("");
    Arguments().add_flag("--ndjson", areLines_, "Each line of any file is a document of a channel or a node");
    Arguments()
        .add_flag("--any-id", takesAnyIdentifier_, "Take also an update with another identifier")
        ->excludes("--ndjson");
    InputFiles::AddMaximumBytesTo(Arguments(), maximumBytes_);
    Arguments().add_flag("--pretty", isPretty_, "Indent the result instead of writing one line")->excludes("--ndjson");
    Arguments().add_flag("--strict", isStrict_, "Refuse documents of which anything would be lost");
    Arguments().add_flag("-q,--quiet", isQuiet_, "Do not tell what was skipped or replaced, nor look for it");
    Arguments().callback(
        [this]
        {
            if (updates_.empty() && !areLines_)
                throw CLI::RequiredError("UPDATE");
            auto names = updates_;
            names.push_back(base_);
            InputFiles::RequireOneStandardInput(names);
        });
}

ExitStatus MergeCommand::Run(Output& output) const
{
    auto names = updates_;
    names.insert(names.begin(), base_);
    if (areLines_)
        return MergeLines({names, maximumBytes_, isQuiet_, isStrict_}, output);

    Channel channel;
    Losses losses;
    for (const auto& name : names)
    {
        const auto status = InputFiles::ReadWhole(
            name, maximumBytes_, [] {}, [&](const SourceText& source) { return Merge(source, channel, losses); });
        if (status != ExitStatus::Success)
            return status;
    }
    const auto text = Documents::ToText(*channel, isPretty_ ? Layout::Pretty : Layout::Compact);
    const auto timeCodes = isQuiet_ && !isStrict_ ? 0 : CountLostTimeCodes(text);
    if (isStrict_ && timeCodes > 0)
    {
        Report("the result has a time code without date, which is written in a form that no reader takes (refused by "
               "--strict)");
        return ExitStatus::Findings;
    }
    losses.Count(0, timeCodes);
    output.WriteJson(text);
    losses.Report();
    return ExitStatus::Success;
}

ExitStatus MergeCommand::Merge(const SourceText& source, Channel& channel, Losses& losses) const
{
    std::vector<Finding> findings;
    ReadOptions options;
    options.limits = SourceText::Limits();
    options.findings = isStrict_ || !isQuiet_ ? &findings : nullptr;
    options.maximumFindings = mostFindings;
    const bool isFirst = channel == nullptr;
    const std::string expected = isFirst || takesAnyIdentifier_ ? "" : channel->Id().Value();

    const auto result = isFirst ? ReadFirst(source.text, options, channel) : MergeText(source.text, *channel, options);
    if (!result || channel == nullptr || IsAnother(channel->Id().Value(), expected))
        return Report(source, WhyNotMerged(source, result, isFirst, expected));
    if (isStrict_ && !findings.empty())
        return Report(source, RefusalOfLoss(source, findings));
    losses.Count(findings.size(), 0);
    return ExitStatus::Success;
}

} // namespace TarvonelJson
