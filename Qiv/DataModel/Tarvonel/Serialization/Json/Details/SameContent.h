#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Optional.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/TimeCode.h>
#include <Qiv/TimePoints/TimePoint.h>

#include <memory>
#include <string>
#include <type_traits>

/// Whether two values of a member of a channel are written alike, which tells whether a channel has changed. Unlike
/// `==` this looks into embedded objects, and tells 1/2 from 2/4; what writers leave out makes no difference.
namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

/// As texts that are always written: identifiers inside of a channel, and values of metadata.
bool AreWrittenAlike(const std::string& left, const std::string& right);
/// As names, which are left out when they are empty.
bool AreSame(const std::string& left, const std::string& right);

inline bool AreSame(const TimePoints::TimePoint& left, const TimePoints::TimePoint& right)
{
    return left == right;
}
inline bool AreSame(const TimePoints::Duration& left, const TimePoints::Duration& right)
{
    return left == right;
}
bool AreSame(const TimePoints::TimeCode& left, const TimePoints::TimeCode& right);
bool AreSame(const Tarvonel::MediaIOs::Speed& left, const Tarvonel::MediaIOs::Speed& right);
bool AreSame(const std::unique_ptr<Tarvonel::MediaIOs::Boundary>& left,
             const std::unique_ptr<Tarvonel::MediaIOs::Boundary>& right);
/// As "mediaAssetOnAir" or "sequenceOnAir", which are left out when their identifiers are empty.
bool AreSame(const BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>& left,
             const BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>& right);
bool AreSame(const BusinessEntityModel::BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence>& left,
             const BusinessEntityModel::BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence>& right);
bool AreSame(const BusinessEntityModel::BaseTypes::Optional<Tarvonel::MediaIOs::SequenceOutput>& left,
             const BusinessEntityModel::BaseTypes::Optional<Tarvonel::MediaIOs::SequenceOutput>& right);

/// Whether the text of the value is the text of an enumerator, which is read as that value.
template <typename Enumeration>
bool IsEnumerator(Enumeration value)
{
    auto read = value;
    return FromText(ToString(value), read) && read == value;
}

/// Values that are no enumerators are all written alike.
template <typename Enumeration, std::enable_if_t<std::is_enum_v<Enumeration>, int> = 0>
bool AreSame(Enumeration left, Enumeration right)
{
    return left == right || (!IsEnumerator(left) && !IsEnumerator(right));
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
