#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Refusal.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/InspectValue.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Quote.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using Common::Serialization::Json::Details::keyOf;
using Common::Serialization::Json::Details::ValueView;
using Form = MediaIOs::Json::Details::ChannelForm;

namespace
{

TextResult RefusalOfIdentifier(ValueView json, DocumentKind kind, const std::string& expected, std::string_view text)
{
    const auto hasIdentifier =
        kind == DocumentKind::MediaInput || kind == DocumentKind::MediaOutput || kind == DocumentKind::Node;
    if (!hasIdentifier || expected.empty())
        return {};
    const auto id = json.Find(keyOf<Form::id>); // a node's key is the same
    const auto found = id.Text().value_or(std::string_view());
    if (found.empty() || found == expected)
        return {};
    return {Quote(found).append(" is another identifier than ").append(Quote(expected)), PositionOf(text, id.Offset()),
            std::string("/").append(keyOf<Form::id>)};
}

// The first finding that is refused, unless the reader would fail before.
TextResult RefusalOfFindings(const std::vector<Finding>& findings, FindingKinds refuse, std::string_view text)
{
    for (const auto& finding : findings)
    {
        if (finding.kind == FindingKind::Failure || finding.kind == FindingKind::EndsProcess)
            break;
        if (refuse.Contains(finding.kind))
            return {finding.sentence, PositionOf(text, finding.offset), finding.pointer};
    }
    // What is not found for want of room could be what is refused.
    if (!refuse.IsEmpty() && findings.size() >= mostFindings)
        return {"there are " + std::to_string(mostFindings) + " findings or more", TextPosition()};
    return {};
}

} // namespace

TextResult RefusalOf(ValueView json, DocumentKind kind, const ReadOptions& options, std::string_view text)
{
    std::vector<Finding> findings;
    if (options.findings != nullptr || !options.refuse.IsEmpty())
        findings = InspectValue(json, kind, mostFindings);
    auto refusal = RefusalOfIdentifier(json, kind, options.expectedId, text);
    if (refusal)
        refusal = RefusalOfFindings(findings, options.refuse, text);
    if (options.findings != nullptr)
    {
        findings.resize(std::min(findings.size(), options.maximumFindings));
        *options.findings = std::move(findings);
    }
    return refusal;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
