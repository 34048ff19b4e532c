#pragma once

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadTarget.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelMembers.h>

#include <functional>

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

/// Merges the members of a document into a channel, whole or not at all, and calls `beforeMerge` in between, when
/// nothing can fail any more and the channel is still as it was.
Common::Serialization::Result MergeChannel(const MediaIOs::Json::Details::ChannelMembers& members,
                                           Tarvonel::MediaIOs::MediaIO& channel,
                                           const std::function<void()>& beforeMerge);

/// The kind of document that the target is read from.
DocumentKind KindOf(const ReadTarget& target);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
