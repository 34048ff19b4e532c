#pragma once

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/ReadWhole.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/TextDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadOptions.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadTarget.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextResult.h>

#include <functional>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

/// Parses a text inside the limits of the options. After a failure there are no findings.
TextResult ParseFor(const ReadOptions& options, std::string_view text, TextDocument& document);

/// What a failure of the parser is told as.
TextResult ParseFailure(std::string_view text, TextFailure failure);

/// Calls `read`, which reads a document of that kind, unless the options refuse the document; refuses what would end
/// the process. `text` is what the document was parsed from, or empty. Throws `std::bad_alloc`, and what the target
/// makes its reader throw.
TextResult ReadDocument(Common::Serialization::Json::Details::ValueView json, std::string_view text, DocumentKind kind,
                        const ReadOptions& options, const std::function<Common::Serialization::Result()>& read);

/// Reads a document so, whole or not at all.
TextResult ReadDocument(Common::Serialization::Json::Details::ValueView json, std::string_view text,
                        const ReadTarget& target, ReadMode mode, const ReadOptions& options);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
