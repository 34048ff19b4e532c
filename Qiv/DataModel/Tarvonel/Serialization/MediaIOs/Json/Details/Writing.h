#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <string_view>

/// What the writers share.
namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

/// The writer itself, or a `TimePointToJsonObjectConverter` in place of an empty pointer.
SharedTimePointWriter OrDefault(SharedTimePointWriter timepointConverter);

/// What MediaIOToJsonConverter::AppendMediaIO does.
Result AppendCommonMembers(Stringer& stringer, const Tarvonel::MediaIOs::MediaIO& channel);

void AppendUnlessEmpty(Stringer& stringer, std::string_view key, const TimePoints::TimeCode& timeCode);
void AppendUnlessEmpty(Stringer& stringer, std::string_view key, const TimePoints::Duration& duration);

/// Writes a reference; the time points of an embedded asset with `timepointConverter` or, when that is empty, in the
/// default form.
Result AppendReference(Stringer& stringer,
                       const BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>& reference,
                       const SharedTimePointWriter& timepointConverter);
Result
AppendReference(Stringer& stringer,
                const BusinessEntityModel::BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence>& reference);

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
