#pragma once

#include <TarvonelJson/CheckedFinding.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/AnyEntity.h>

#include <string_view>
#include <vector>

namespace TarvonelJson
{

/// The members of a document that conversion writes in a form that another conversion changes, although the readers
/// take them: empty when what `convert` writes converts to itself. `entity` is what was read from `text`.
std::vector<CheckedFinding>
FindInstability(std::string_view text,
                const Qiv::DataModel::Tarvonel::Serialization::Json::Documents::AnyEntity& entity);

} // namespace TarvonelJson
