#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/AnyResult.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadOptions.h>

#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

/// Reads a document of the kind that its "_type" names into a new entity of that kind. Never ends the process.
///
/// Failures: the document names no kind, which is told by the text of `JsonToMediaIOConverter`; it would end the
/// process, told by the sentence of the finding; or the reader fails, told by its own text. Their `Pointer()` names the
/// value that is to blame; their `Position()` says nothing. What else is a failure the options say.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT AnyResult ReadAny(const Common::Serialization::Json::JsonObject& json,
                                                              const ReadOptions& options = {});
template <typename Text>
ForText<Text, AnyResult> ReadAny(const Text& text, const ReadOptions& options = {}) = delete; // ReadAnyText reads it

/// The same from a text, which is parsed as strictly as by `ReadSnapshotText`:
///
///     if (const auto result = ReadAnyText(text); !result)
///         std::cerr << result.Position().line << ": " << result.Sentence() << '\n';
///     else if (const auto* const node = std::get_if<Node>(&result.Entity()))
///         std::cout << node->HostName() << '\n';
///
/// Failures have a position; one more is that the text is no JSON.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT AnyResult ReadAnyText(std::string_view text,
                                                                  const ReadOptions& options = {});

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
