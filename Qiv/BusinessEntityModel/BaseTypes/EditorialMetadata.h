#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// The name under which a channel holds its metadata profiles.
using EditorialMetadata = MetadataProfileDictionary;

} // namespace Qiv::BusinessEntityModel::BaseTypes
