#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SequenceOutputToJsonConverter.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/SequenceToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/SharedReferenceToJson.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>

#include <memory>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using BusinessEntityModel::Edits::Sequence;
using BusinessEntityModel::Edits::Serialization::Json::SequenceToJsonConverter;
using MediaAssets::MediaAsset;
using MediaAssets::Serialization::Json::MediaAssetToJsonConverter;
using MediaAssets::Serialization::Json::SharedReferenceToJson;
using MediaAssets::Serialization::Json::TimePointToJsonObjectConverter;
using Tarvonel::MediaIOs::SequenceOutput;

SequenceOutputToJsonConverter::SequenceOutputToJsonConverter()
    : SequenceOutputToJsonConverter(std::make_shared<TimePointToJsonObjectConverter>())
{
}

SequenceOutputToJsonConverter::SequenceOutputToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(std::move(timepointConverter))
{
}

SequenceOutputToJsonConverter::~SequenceOutputToJsonConverter() = default;

Result SequenceOutputToJsonConverter::To(const SequenceOutput& sequenceOutput, Stringer& stringer) const
{
    const auto append = [&]() -> Result
    {
        stringer.Key("_type").Value("SequenceOutput");

        if (!sequenceOutput.SequenceOnAir().Id().IsEmpty())
        {
            const SharedReferenceToJson<Sequence, false> converter("SequenceRef", "sequence",
                                                                   std::make_shared<SequenceToJsonConverter>());
            stringer.Key("sequenceOnAir");
            if (auto result = converter.To(sequenceOutput.SequenceOnAir(), stringer); !result)
                return result;
        }

        stringer.Key("assetBlockOnAir");
        if (auto result = AppendAssetBlockOutput(stringer, sequenceOutput.AssetBlockOnAir()); !result)
            return result;

        if (sequenceOutput.NextAssetBlockOnAir().HasValue())
        {
            stringer.Key("nextAssetBlockOnAir");
            if (auto result = AppendAssetBlockOutput(stringer, *sequenceOutput.NextAssetBlockOnAir()); !result)
                return result;
        }

        stringer.Key("editMode").Value(sequenceOutput.EditMode());
        return {};
    };

    stringer.Object();
    auto result = append();
    stringer.CloseObject();
    return result;
}

Result SequenceOutputToJsonConverter::AppendAssetBlockOutput(Stringer& stringer,
                                                             const SequenceOutput::AssetBlockOutput& assetBlock) const
{
    const SharedReferenceToJson<MediaAsset, false> converter(
        "MediaAssetRef", "mediaAsset", std::make_shared<MediaAssetToJsonConverter>(timepointConverter_));

    stringer.Object();
    stringer.Key("_type").Value("AssetBlockOnAir");
    stringer.Key("id").Value(assetBlock.Id().Value().c_str());
    stringer.Key("mediaAsset");
    auto result = converter.To(assetBlock.MediaAssetRef(), stringer);
    stringer.CloseObject();
    return result;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
