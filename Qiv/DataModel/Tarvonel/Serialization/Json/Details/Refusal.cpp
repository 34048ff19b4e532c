#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Refusal.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Inspection.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using Common::Serialization::Json::JsonObject;

namespace
{

TextResult RefusalOfIdentifier(const JsonObject& json, DocumentKind kind, const std::string& expected,
                               std::string_view text)
{
    const auto hasIdentifier =
        kind == DocumentKind::MediaInput || kind == DocumentKind::MediaOutput || kind == DocumentKind::Node;
    constexpr std::string_view key = "id";
    if (!hasIdentifier || expected.empty() || !json.isObject())
        return {};
    const auto* const id = json.find(key.data(), key.data() + key.size());
    if (id == nullptr || !id->isString())
        return {};
    const auto found = id->asString();
    if (found.empty() || found == expected)
        return {};
    return {Quote(found).append(" is another identifier than ").append(Quote(expected)),
            PositionOf(text, id->getOffsetStart()), "/id"};
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
    return {};
}

} // namespace

TextResult RefusalOf(const JsonObject& json, DocumentKind kind, const ReadOptions& options, std::string_view text)
{
    std::vector<Finding> findings;
    if (options.findings != nullptr || !options.refuse.IsEmpty())
        findings = InspectDocument(json, kind);
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
