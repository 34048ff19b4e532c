#pragma once

#include <TarvonelJson/CheckedFinding.h>

#include <Qiv/Common/Serialization/Json/JsonObject.h>

#include <vector>

namespace TarvonelJson
{

/// The members of a document that conversion writes in a form that another conversion changes, although the readers
/// take them: empty when what `convert` writes converts to itself, and when the document can't be converted.
std::vector<CheckedFinding> FindInstability(const Qiv::Common::Serialization::Json::JsonObject& document);

} // namespace TarvonelJson
