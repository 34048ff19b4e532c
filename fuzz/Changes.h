#pragma once

#include <FuzzInput.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>

namespace Fuzz
{

/// Changes a channel through its setters as an input says: to values that documents have, and to all that they cannot
/// have.
void Change(Qiv::DataModel::Tarvonel::MediaIOs::MediaIO& channel, Input& input);

} // namespace Fuzz
