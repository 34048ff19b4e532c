#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <string_view>

/// What the writers share.
namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

/// The writer itself, or a `TimePointToJsonObjectConverter` in place of an empty pointer.
SharedTimePointWriter OrDefault(SharedTimePointWriter timepointConverter);

// What the writers of the same names do, most of which are declared not to throw: these let std::bad_alloc out.
Result WriteMediaIO(Stringer& stringer, const Tarvonel::MediaIOs::MediaIO& channel,
                    const SharedTimePointWriter& timepointConverter);
Result AppendMediaInput(Stringer& stringer, const Tarvonel::MediaIOs::MediaInput& channel,
                        const ToJsonConverter<TimePoints::TimePoint>& timepointConverter);
Result AppendMediaOutput(Stringer& stringer, const Tarvonel::MediaIOs::MediaOutput& channel,
                         const SharedTimePointWriter& timepointConverter);
Result WriteBoundary(Stringer& stringer, const Tarvonel::MediaIOs::Boundary& boundary,
                     const ToJsonConverter<TimePoints::TimePoint>& timepointConverter);
Result AppendBoundary(Stringer& stringer, const Tarvonel::MediaIOs::BoundaryAbsolute& boundary,
                      const ToJsonConverter<TimePoints::TimePoint>& timepointConverter);
Result AppendBoundary(Stringer& stringer, const Tarvonel::MediaIOs::BoundaryRelative& boundary);
Result WriteSpeed(Stringer& stringer, const Tarvonel::MediaIOs::Speed& speed);
Result AppendSpeed(Stringer& stringer, const Tarvonel::MediaIOs::Speed& speed);

/// What MediaIOToJsonConverter::AppendMediaIO does.
Result AppendCommonMembers(Stringer& stringer, const Tarvonel::MediaIOs::MediaIO& channel);

void AppendUnlessEmpty(Stringer& stringer, const Common::Serialization::Json::QuotedKey& key,
                       const TimePoints::TimeCode& timeCode);
void AppendUnlessEmpty(Stringer& stringer, const Common::Serialization::Json::QuotedKey& key,
                       const TimePoints::Duration& duration);

/// Writes a reference; the time points of an embedded asset with `timepointConverter` or, when that is empty, in the
/// default form.
Result AppendReference(Stringer& stringer,
                       const BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>& reference,
                       const SharedTimePointWriter& timepointConverter);
Result
AppendReference(Stringer& stringer,
                const BusinessEntityModel::BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence>& reference);

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
