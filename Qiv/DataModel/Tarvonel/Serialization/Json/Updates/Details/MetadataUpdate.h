#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/EditorialMetadata.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/Details/Update.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates::Details
{

/// Writes the member "metadata" of an update, with the keys that differ; nothing when there are none.
void WriteMetadata(const BusinessEntityModel::BaseTypes::EditorialMetadata& before,
                   const BusinessEntityModel::BaseTypes::EditorialMetadata& after, Update& update);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates::Details
