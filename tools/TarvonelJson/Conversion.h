#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>

#include <string>

namespace TarvonelJson
{

/// Reads a document of the given kind into a new entity and writes that. After a failure `stringer` may hold a part.
Qiv::Common::Serialization::Result ReadAndWrite(const Qiv::Common::Serialization::Json::JsonObject& document,
                                                Qiv::DataModel::Tarvonel::Serialization::Json::DocumentKind kind,
                                                Qiv::Common::Serialization::Json::Stringer& stringer);

/// What to say of a document whose "_type" names no kind.
std::string NoKindMessage(const Qiv::Common::Serialization::Json::JsonObject& document);

/// A new writer of the indented form or of one line.
Qiv::Common::Serialization::Json::Stringer MakeStringer(bool isPretty);

} // namespace TarvonelJson
