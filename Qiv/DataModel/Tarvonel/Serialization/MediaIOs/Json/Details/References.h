#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToSharedReference.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

/// The two kinds of reference in channels: "MediaAssetRef" with "mediaAsset", "SequenceRef" with "sequence".
namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using MediaAssetReference = BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>;
using SequenceReference = BusinessEntityModel::BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence>;

// One each for the process. Never destroyed, so that references can still be read while the process ends.
const MediaAssets::Serialization::Json::JsonToSharedReference<MediaAssets::MediaAsset>& MediaAssetReferenceReader();
const MediaAssets::Serialization::Json::JsonToSharedReference<BusinessEntityModel::Edits::Sequence>&
SequenceReferenceReader();

/// Writes a reference; the time points of an embedded asset with `timepointConverter` or, when that is empty, in the
/// default form.
Result AppendReference(Stringer& stringer, const MediaAssetReference& reference,
                       const SharedTimePointWriter& timepointConverter);
Result AppendReference(Stringer& stringer, const SequenceReference& reference);

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
