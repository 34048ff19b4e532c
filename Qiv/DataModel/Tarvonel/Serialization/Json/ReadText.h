#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadOptions.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadTarget.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextResult.h>

#include <string_view>

/// For callers who have text: parsed strictly, refused when it would end the process, and read whole or not at all.
///
///     MediaIOs::MediaOutput channel;
///     if (const auto result = MergeText(text, channel); !result)
///         std::cerr << result.Position().line << ": " << result.ErrorMessage() << '\n';
///
/// Failures: the text is no JSON; the document would end the process, told by the sentence of the finding; or the
/// reader fails, told by its own text, unchanged. Each comes with its place, and the target is as it was. No text makes
/// these functions throw; a target may, as `JsonToMediaIOConverter` says.
namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// How many objects and arrays may stand inside each other.
constexpr int maximumTextDepth = 100;

/// Parses one JSON document, an object or an array, into `json`.
///
/// Strict: no byte order mark, no comments, no control characters in strings, no key twice in an object, nothing but
/// white space after the document, at most `maximumTextDepth` levels; the document itself counts as one. Let through,
/// as jsoncpp does, are text that is not well-formed UTF-8 and numbers such as 01 and +1. After a failure `json` is
/// null.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult ParseText(std::string_view text,
                                                                 Common::Serialization::Json::JsonObject& json);

/// Parses a document and merges it into the entity: see `MergeWhole`.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult MergeText(std::string_view text, ReadTarget target);
/// The same, unless the options refuse the document.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult MergeText(std::string_view text, ReadTarget target,
                                                                 const ReadOptions& options);

/// Parses a document and replaces the entity by it: see `ReadSnapshot`.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult ReadSnapshotText(std::string_view text, ReadTarget target);
/// The same, unless the options refuse the document.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult ReadSnapshotText(std::string_view text, ReadTarget target,
                                                                        const ReadOptions& options);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
