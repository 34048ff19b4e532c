#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/References.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/JsonToSequenceConverter.h>
#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/SequenceToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToMediaAssetConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/SharedReferenceToJson.h>

#include <memory>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using namespace BusinessEntityModel::Edits::Serialization::Json;
using namespace MediaAssets::Serialization::Json;
using BusinessEntityModel::Edits::Sequence;
using MediaAssets::MediaAsset;

const JsonToSharedReference<MediaAsset>& MediaAssetReferenceReader()
{
    static const auto& reader = *new JsonToSharedReference<MediaAsset>("MediaAssetRef", "mediaAsset",
                                                                       std::make_shared<JsonToMediaAssetConverter>());
    return reader;
}

const JsonToSharedReference<Sequence>& SequenceReferenceReader()
{
    static const auto& reader =
        *new JsonToSharedReference<Sequence>("SequenceRef", "sequence", std::make_shared<JsonToSequenceConverter>());
    return reader;
}

Result AppendReference(Stringer& stringer, const MediaAssetReference& reference,
                       const SharedTimePointWriter& timepointConverter)
{
    // A reference by identifier needs no writer of assets.
    const auto assetWriter =
        reference.Pointer() ? std::make_shared<MediaAssetToJsonConverter>(timepointConverter) : nullptr;
    return SharedReferenceToJson<MediaAsset, false>("MediaAssetRef", "mediaAsset", assetWriter).To(reference, stringer);
}

Result AppendReference(Stringer& stringer, const SequenceReference& reference)
{
    const auto sequenceWriter = reference.Pointer() ? std::make_shared<SequenceToJsonConverter>() : nullptr;
    return SharedReferenceToJson<Sequence, false>("SequenceRef", "sequence", sequenceWriter).To(reference, stringer);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
