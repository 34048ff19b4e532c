#pragma once

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadTarget.h>

/// What MergeWhole and ReadSnapshot do, for a value of any source.
namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

enum class ReadMode
{
    Merge,
    Snapshot
};

/// Reads whole or not at all. Throws what the readers do; the target is as it was then.
Common::Serialization::Result ReadWhole(Common::Serialization::Json::Details::ValueView json, const ReadTarget& target,
                                        ReadMode mode);

/// The kind of document that the target is read from.
DocumentKind KindOf(const ReadTarget& target);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
