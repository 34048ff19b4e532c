#pragma once

#include <TarvonelJson/ExitStatus.h>
#include <TarvonelJson/SourceText.h>

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Finding.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextResult.h>

#include <string>
#include <vector>

namespace TarvonelJson
{

/// Why a document is not taken, and where.
struct Refusal
{
    SourceText::Position position;
    std::string pointer;
    std::string sentence;
    ExitStatus status = ExitStatus::Findings;
    /// How `check` calls it when there is nothing else to say of the document, otherwise null.
    const char* kind = nullptr;
};

/// Of a text that is no JSON, as `result` says.
Refusal NotJson(const SourceText& source, const Qiv::DataModel::Tarvonel::Serialization::Json::TextResult& result);

/// Of a document whose "_type" names no kind.
Refusal UnknownType(const SourceText& source, const Qiv::Common::Serialization::Json::JsonObject& document);

/// Of a text that `result` says could not be read, whatever the reason is.
Refusal WhyNotRead(const SourceText& source, const Qiv::DataModel::Tarvonel::Serialization::Json::TextResult& result);

/// For `--strict`: of what the findings tell, or, without any, of a time code without date.
Refusal RefusalOfLoss(const SourceText& source,
                      const std::vector<Qiv::DataModel::Tarvonel::Serialization::Json::Finding>& findings);

/// Prints it on standard error and returns its status.
ExitStatus Report(const SourceText& source, const Refusal& refusal);

} // namespace TarvonelJson
