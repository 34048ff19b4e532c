#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/ReadDocument.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/InspectValue.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Refusal.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using Common::Serialization::Json::Details::ValueView;

namespace
{

// The failure of a document that has just failed. Inspecting it tells the place, which the reader does not.
TextResult FailureOf(ValueView json, std::string_view text, DocumentKind kind, const std::string& readerMessage)
{
    const auto findings = InspectValue(json, kind, 0); // none but those that the reader stops at
    const auto first =
        std::find_if(findings.begin(), findings.end(),
                     [](const Finding& finding)
                     { return finding.kind == FindingKind::Failure || finding.kind == FindingKind::EndsProcess; });
    if (first == findings.end())
        return {readerMessage, TextPosition()};
    const auto& message = first->kind == FindingKind::EndsProcess ? first->sentence : readerMessage;
    return {message, PositionOf(text, first->offset), first->pointer, first->sentence};
}

} // namespace

TextResult ParseFor(const ReadOptions& options, std::string_view text, TextDocument& document)
{
    if (options.findings != nullptr)
        options.findings->clear();
    auto failure = document.Parse(text, options.limits);
    return failure ? ParseFailure(text, std::move(*failure)) : TextResult();
}

TextResult ParseFailure(std::string_view text, TextFailure failure)
{
    return {std::move(failure.message), PositionOf(text, static_cast<std::ptrdiff_t>(failure.offset))};
}

TextResult ReadDocument(ValueView json, std::string_view text, DocumentKind kind, const ReadOptions& options,
                        const std::function<Common::Serialization::Result()>& read)
{
    if (auto refusal = RefusalOf(json, kind, options, text); !refusal)
        return refusal;
    std::string message;
    try
    {
        const auto result = read();
        if (result)
            return {};
        message = result.ErrorMessage();
    }
    // What ends the process elsewhere.
    catch (const std::logic_error& exception)
    {
        message = exception.what();
    }
    catch (const std::runtime_error& exception)
    {
        message = exception.what();
    }
    return FailureOf(json, text, kind, message);
}

TextResult ReadDocument(ValueView json, std::string_view text, const ReadTarget& target, ReadMode mode,
                        const ReadOptions& options)
{
    const auto read = [&] { return ReadWhole(json, target, mode); };
    return ReadDocument(json, text, KindOf(target), options, std::cref(read)); // a copy of it would be an allocation
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
