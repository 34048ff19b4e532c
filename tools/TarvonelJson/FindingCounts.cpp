#include <TarvonelJson/FindingCounts.h>

#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Printable.h>

#include <Qiv/Common/Serialization/Json/Stringer.h>

namespace TarvonelJson
{

using Qiv::Common::Serialization::Json::Stringer;

namespace
{

std::string InWords(std::int64_t documents, std::int64_t findings)
{
    return std::to_string(documents) + (documents == 1 ? " document, " : " documents, ") + std::to_string(findings) +
           (findings == 1 ? " finding" : " findings");
}

/// The writer writes 64 bits as text, since JSON libraries keep 53 of them.
void WriteNumber(Stringer& json, const char* key, std::int64_t number)
{
    json.Key(key).Value(static_cast<double>(number));
}

} // namespace

void FindingCounts::Count(const SourceText& source, const std::vector<CheckedFinding>& findings)
{
    if (files_.empty() || files_.back().first != source.file)
        files_.emplace_back(source.file, Counts());
    const auto count = static_cast<std::int64_t>(findings.size());
    for (auto* const counts : {&files_.back().second, &all_})
    {
        ++counts->documents;
        counts->findings += count;
    }
    for (const auto& finding : findings)
        ++kinds_[finding.kind];
}

std::string FindingCounts::AsText() const
{
    std::string text;
    for (const auto& [file, counts] : files_)
        text += MessageLine(ShortFileName(file) + ": ", InWords(counts.documents, counts.findings), false);
    std::string kinds;
    for (const auto& [kind, count] : kinds_)
        kinds += (kinds.empty() ? ": " : ", ") + std::to_string(count) + ' ' + kind;
    return text + "total: " + InWords(all_.documents, all_.findings) + kinds + '\n';
}

std::string FindingCounts::AsJson() const
{
    auto json = Stringer::PrettyStringer();
    json.Object();
    WriteNumber(json, "documents", all_.documents);
    WriteNumber(json, "findings", all_.findings);
    json.Key("kinds").Object();
    for (const auto& [kind, count] : kinds_)
        WriteNumber(json, kind.c_str(), count);
    json.CloseObject().Key("files").Array();
    for (const auto& [file, counts] : files_)
    {
        json.Object().Key("file").Value(file);
        WriteNumber(json, "documents", counts.documents);
        WriteNumber(json, "findings", counts.findings);
        json.CloseObject();
    }
    json.CloseArray().CloseObject();
    return PrintableJson(json.ToString()) + '\n';
}

} // namespace TarvonelJson
