#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Finding.h>

#include <cstddef>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// How many findings an inspection returns that is not told otherwise.
inline constexpr std::size_t mostFindings = 100'000;

/// Tells what the readers would pass over silently in a document, what makes them fail, and what ends the process.
///
/// The kind of the document is what its "_type" names; one that names no kind is judged as the reader of channels of
/// either kind does. Channels are judged as by `JsonToMediaIOConverter`, for which "_type" is required.
///
/// The findings stand in the order in which the reader takes the members, so the reader fails with the text of the
/// first `Failure` (see FirstFailure) and succeeds when there is none, provided that nothing ends the process. What
/// the reader would not reach after that failure is inspected all the same, apart from the inside of an object with a
/// wrong "_type": a document is called fatal also when a failure would keep the reader from the fatal member. A channel
/// with a wrong "_type" or none is still searched for what ends the process. Members that no rule names, and metadata,
/// come in the order of the source: in a text as they stand, in a `Json::Value` by name.
///
/// In what the writers write, with time points in their default form, nothing is found unless the entity holds what
/// does not come back:
///
/// - time codes without a text that is read back: without date, with a frame number of three digits and more, beyond
///   the years 1900 to 2261, or at a rate that is not within 1 to 2147483647
/// - enumerators outside of their enumeration
/// - references with another identifier than that of their object
/// - a relative boundary with the absolute origin, which is written as an empty object, so that the reader fails
/// - a server identifier of the operator that is no positive multiple of 10, and metadata names that begin with the
///   reserved "qiv.peloperator", or that have no dot before a NUL, at which they are cut
///
/// Members with a `WrongType`, `UnknownMember` or `Ignored` may be removed without any effect on the entity, as long
/// as the document has no failure and the object around them does not become empty, which readers refuse.
///
/// At most `maximum` findings are returned, the first ones in that order; the first `Failure` and the first
/// `EndsProcess` come in addition where they are not among these.
///
/// Throws nothing but std::bad_alloc. The depth of the document does not matter: unknown members are not descended
/// into.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::vector<Finding>
InspectDocument(const Common::Serialization::Json::JsonObject& document, std::size_t maximum = mostFindings);

/// The same for a caller who knows what the document should be: judged as by the reader of that kind, with the given
/// channel kind as target. "_type" is optional but for channels and boundaries, and another one is a failure.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::vector<Finding>
InspectDocument(const Common::Serialization::Json::JsonObject& document, DocumentKind kind,
                std::size_t maximum = mostFindings);

// ParseText parses texts.
template <typename Text>
ForText<Text, std::vector<Finding>> InspectDocument(const Text& text, std::size_t maximum = mostFindings) = delete;
template <typename Text>
ForText<Text, std::vector<Finding>> InspectDocument(const Text& text, DocumentKind kind,
                                                    std::size_t maximum = mostFindings) = delete;

/// The finding whose text the reader would fail with; null when there is none.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT const Finding* FirstFailure(const std::vector<Finding>& findings) noexcept;

/// The first finding that ends the process; null when there is none, and the document is safe to read.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT const Finding* FirstFatal(const std::vector<Finding>& findings) noexcept;

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
