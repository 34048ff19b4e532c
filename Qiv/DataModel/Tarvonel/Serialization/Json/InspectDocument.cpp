#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/InspectValue.h>

#include <algorithm>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

using Common::Serialization::Json::JsonObject;

namespace
{

const Finding* FirstOf(const std::vector<Finding>& findings, FindingKind kind) noexcept
{
    const auto found =
        std::find_if(findings.begin(), findings.end(), [kind](const Finding& finding) { return finding.kind == kind; });
    return found != findings.end() ? &*found : nullptr;
}

} // namespace

std::vector<Finding> InspectDocument(const JsonObject& document, std::size_t maximum)
{
    return InspectDocument(document, KindOf(document).value_or(DocumentKind::MediaInput), maximum);
}

std::vector<Finding> InspectDocument(const JsonObject& document, DocumentKind kind, std::size_t maximum)
{
    return Details::InspectValue(document, kind, maximum);
}

const Finding* FirstFailure(const std::vector<Finding>& findings) noexcept
{
    return FirstOf(findings, FindingKind::Failure);
}

const Finding* FirstFatal(const std::vector<Finding>& findings) noexcept
{
    return FirstOf(findings, FindingKind::EndsProcess);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
