#include <TarvonelJson/CheckedFinding.h>

#include <TarvonelJson/Instability.h>
#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Places.h>
#include <TarvonelJson/Printable.h>
#include <TarvonelJson/Refusal.h>

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Qiv::Common::Serialization::Json::Stringer;

std::vector<CheckedFinding> CheckDocument(const SourceText& source)
{
    std::vector<Finding> findings;
    ReadOptions options;
    options.limits = SourceText::Limits();
    options.findings = &findings;
    options.maximumFindings = std::numeric_limits<std::size_t>::max();
    std::vector<CheckedFinding> checked;
    if (const auto result = Documents::ReadAnyText(source.text, options))
    {
        checked = FindInstability(source.text, result.Entity());
    }
    else if (auto refusal = WhyNotRead(source, result); refusal.kind != nullptr)
    {
        const auto level = refusal.status == ExitStatus::Trouble ? Level::NotJson : Level::Failure;
        return {
            {refusal.position, std::move(refusal.pointer), refusal.kind, std::move(refusal.sentence), "", level, 0}};
    }
    if (!checked.empty())
    {
        // What the inspection says of a value, it says better.
        std::unordered_set<std::string_view> said;
        for (const auto& finding : findings)
            said.insert(finding.pointer);
        checked.erase(std::remove_if(checked.begin(), checked.end(),
                                     [&said](const CheckedFinding& unstable)
                                     { return said.count(unstable.pointer) > 0; }),
                      checked.end());
    }
    for (auto& finding : findings)
    {
        checked.push_back({{},
                           std::move(finding.pointer),
                           std::string(ToString(finding.kind)),
                           std::move(finding.sentence),
                           std::move(finding.readerMessage),
                           LevelOf(finding.kind),
                           finding.offset});
    }
    std::stable_sort(checked.begin(), checked.end(),
                     [](const CheckedFinding& left, const CheckedFinding& right)
                     { return left.offset < right.offset; });
    Places places(source.text);
    for (auto& finding : checked)
        finding.position = places.Of(finding.offset);
    return checked;
}

std::string AsText(const SourceText& source, const CheckedFinding& finding, bool isColoured)
{
    const auto* const mark = finding.level == Level::Fatal ? "FATAL: " : "";
    return MessageLine(source.MessageStart(finding.position, finding.pointer), mark + finding.sentence, isColoured);
}

std::string AsJson(const SourceText& source, const CheckedFinding& finding)
{
    const auto position = source.InFile(finding.position);
    Stringer json;
    json.Object().Key("file").Value(source.file);
    json.Key("line").Value(static_cast<std::int32_t>(position.line));
    json.Key("column").Value(static_cast<std::int32_t>(position.column));
    json.Key("pointer").Value(finding.pointer).Key("kind").Value(finding.kind).Key("sentence").Value(finding.sentence);
    if (!finding.readerMessage.empty())
        json.Key("readerMessage").Value(finding.readerMessage);
    json.CloseObject();
    return PrintableJson(json.ToString());
}

} // namespace TarvonelJson
