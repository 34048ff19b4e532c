#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SequenceOutputToJsonConverter.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/References.h>

#include <memory>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using MediaAssets::Serialization::Json::TimePointToJsonObjectConverter;
using Tarvonel::MediaIOs::SequenceOutput;

SequenceOutputToJsonConverter::SequenceOutputToJsonConverter() : SequenceOutputToJsonConverter(nullptr) {}

SequenceOutputToJsonConverter::SequenceOutputToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(timepointConverter ? std::move(timepointConverter)
                                             : std::make_shared<TimePointToJsonObjectConverter>())
{
}

SequenceOutputToJsonConverter::~SequenceOutputToJsonConverter() = default;

Result SequenceOutputToJsonConverter::To(const SequenceOutput& sequenceOutput, Stringer& stringer) const
{
    const auto append = [&]() -> Result
    {
        stringer.Member("_type", "SequenceOutput");

        if (!sequenceOutput.SequenceOnAir().Id().IsEmpty())
        {
            stringer.Key("sequenceOnAir");
            if (auto result = Details::AppendReference(stringer, sequenceOutput.SequenceOnAir()); !result)
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
    stringer.Object();
    stringer.Member("_type", "AssetBlockOnAir");
    stringer.Member("id", assetBlock.Id().Value().c_str());
    stringer.Key("mediaAsset");
    auto result = Details::AppendReference(stringer, assetBlock.MediaAssetRef(), timepointConverter_);
    stringer.CloseObject();
    return result;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
