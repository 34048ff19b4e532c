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
    using Writer = SharedReferenceToJson<MediaAsset, false>;
    static const auto& defaultWriter =
        *new Writer("MediaAssetRef", "mediaAsset", std::make_shared<MediaAssetToJsonConverter>());

    // A reference by identifier holds no time points.
    if (timepointConverter == nullptr || reference.Pointer() == nullptr)
        return defaultWriter.To(reference, stringer);
    return Writer("MediaAssetRef", "mediaAsset", std::make_shared<MediaAssetToJsonConverter>(timepointConverter))
        .To(reference, stringer);
}

Result AppendReference(Stringer& stringer, const SequenceReference& reference)
{
    static const auto& writer = *new SharedReferenceToJson<Sequence, false>(
        "SequenceRef", "sequence", std::make_shared<SequenceToJsonConverter>());
    return writer.To(reference, stringer);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
