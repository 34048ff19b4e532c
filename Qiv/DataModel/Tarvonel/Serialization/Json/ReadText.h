#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadOptions.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadTarget.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextLimits.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextResult.h>

#include <string_view>

/// For callers who have text: parsed strictly, refused when it would end the process, and read whole or not at all.
///
///     MediaIOs::MediaOutput channel;
///     if (const auto result = MergeText(text, channel); !result)
///         std::cerr << result.Position().line << ": " << result.Sentence() << '\n';
///
/// Strict is RFC 8259 to the letter, with well-formed UTF-8 and paired surrogates; and further an object or array at
/// the top, no key twice in an object (compared after unescaping), nothing but white space behind the document, and no
/// more of anything than the limits allow. A number beyond the range of a double is refused; otherwise numbers are
/// those of jsoncpp, whatever the global locale and the rounding mode.
///
/// Failures: the text is no such JSON; the document would end the process, told by the sentence of the finding; or the
/// reader fails, told by its own text, unchanged. Where a document would both fail and end the process, the first in
/// the order of reading is told. Each failure comes with its place, and the target is as it was.
///
/// No text makes these functions throw, but memory that runs out (`std::bad_alloc`); a target may, as
/// `JsonToMediaIOConverter` says. What becomes of the target then, `MergeWhole` says. They may be called by several
/// threads, each with a target of its own.
namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// Parses one JSON document into `json`; the values have their offsets. After a failure `json` is null. The text may be
/// one that lies in `json`.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult ParseText(std::string_view text,
                                                                 Common::Serialization::Json::JsonObject& json,
                                                                 const TextLimits& limits = {});

/// Parses a document and merges it into the entity: see `MergeWhole`.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult MergeText(std::string_view text, ReadTarget target,
                                                                 const TextLimits& limits = {});
/// The same, unless the options refuse the document.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult MergeText(std::string_view text, ReadTarget target,
                                                                 const ReadOptions& options);

/// Parses a document and replaces the entity by it: see `ReadSnapshot`.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult ReadSnapshotText(std::string_view text, ReadTarget target,
                                                                        const TextLimits& limits = {});
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT TextResult ReadSnapshotText(std::string_view text, ReadTarget target,
                                                                        const ReadOptions& options);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
