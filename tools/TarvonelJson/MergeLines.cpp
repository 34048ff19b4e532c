#include <TarvonelJson/MergeLines.h>

#include <TarvonelJson/InputFiles.h>
#include <TarvonelJson/Losses.h>
#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Refusal.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Mirror.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <json/value.h>

#include <algorithm>
#include <map>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Mirrors::ApplyResult;
using Mirrors::Effect;
using Mirrors::Mirror;

namespace
{

/// `losses` are the findings for which the document may have been refused.
Refusal RefusalOf(const SourceText& source, const ApplyResult& result, const std::vector<Finding>& losses)
{
    const bool isForLoss = !losses.empty() && result.Sentence() == losses.front().sentence;
    if (isForLoss && FirstFailure(losses) == nullptr && FirstFatal(losses) == nullptr)
        return RefusalOfLoss(source, losses);
    if (result.Kind())
        return {result.Position(), result.Pointer(), result.Sentence()};
    Json::Value document;
    const auto parsed = ParseText(source.text, document);
    return parsed ? UnknownType(source, document) : NotJson(source, parsed);
}

} // namespace

ExitStatus MergeLines(const MergeLinesOptions& options, Output& output)
{
    Mirror mirror;
    Losses losses;
    std::map<Effect, std::size_t> counts;
    std::vector<Finding> findings;
    ReadOptions reading;
    if (options.isStrict)
        reading.refuse = FindingKinds::All();
    if (options.isStrict || !options.isQuiet)
        reading.findings = &findings;

    const auto apply = [&](const SourceText& source)
    {
        const auto result = mirror.Apply(source.text, reading);
        ++counts[result.Effect()];
        if (!result)
            return Report(source, RefusalOf(source, result, options.isStrict ? findings : std::vector<Finding>()));
        losses.Count(findings.size(), 0);
        return ExitStatus::Success;
    };
    auto status = ExitStatus::Success;
    for (const auto& name : options.names)
        status = std::max(status, InputFiles::ReadLines(name, options.maximumBytes, output, apply));

    const auto write = [&](const auto& entities)
    {
        for (const auto* const entity : entities)
        {
            const auto text = Documents::ToText(*entity);
            losses.Count(0, options.isQuiet ? 0 : CountLostTimeCodes(text));
            output.WriteJson(text);
        }
    };
    write(mirror.Nodes());
    write(mirror.Channels());

    if (!options.isQuiet)
    {
        losses.Report();
        std::string summary;
        for (const auto effect : {Effect::Created, Effect::Changed, Effect::Unchanged, Effect::Refused})
            summary += (summary.empty() ? "" : ", ") + std::to_string(counts[effect]) + ' ' +
                       std::string(Mirrors::ToString(effect));
        Report(summary);
    }
    return status;
}

} // namespace TarvonelJson
