#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SequenceOutputToJsonConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/AssetBlockForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceOutputForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Common::Serialization::Json::Details::keyOf;
using Tarvonel::MediaIOs::SequenceOutput;

SequenceOutputToJsonConverter::SequenceOutputToJsonConverter() : SequenceOutputToJsonConverter(nullptr) {}

SequenceOutputToJsonConverter::SequenceOutputToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(Details::OrDefault(std::move(timepointConverter)))
{
}

SequenceOutputToJsonConverter::~SequenceOutputToJsonConverter() = default;

Result SequenceOutputToJsonConverter::To(const SequenceOutput& sequenceOutput, Stringer& stringer) const
{
    using Form = Details::SequenceOutputForm;

    const auto object = stringer.ObjectScope();
    stringer.Member(keyOf<Form::type>, Form::tag);

    if (!sequenceOutput.SequenceOnAir().Id().IsEmpty())
    {
        stringer.Key(keyOf<Form::sequenceOnAir>);
        if (auto result = Details::AppendReference(stringer, sequenceOutput.SequenceOnAir()); !result)
            return result;
    }

    stringer.Key(keyOf<Form::assetBlockOnAir>);
    if (auto result = AppendAssetBlockOutput(stringer, sequenceOutput.AssetBlockOnAir()); !result)
        return result;

    if (sequenceOutput.NextAssetBlockOnAir().HasValue())
    {
        stringer.Key(keyOf<Form::nextAssetBlockOnAir>);
        if (auto result = AppendAssetBlockOutput(stringer, *sequenceOutput.NextAssetBlockOnAir()); !result)
            return result;
    }

    stringer.Key(keyOf<Form::editMode>).Value(sequenceOutput.EditMode());
    return {};
}

Result SequenceOutputToJsonConverter::AppendAssetBlockOutput(Stringer& stringer,
                                                             const SequenceOutput::AssetBlockOutput& assetBlock) const
{
    using Form = Details::AssetBlockForm;

    const auto object = stringer.ObjectScope();
    stringer.Member(keyOf<Form::type>, Form::tag);
    stringer.Member(keyOf<Form::id>, assetBlock.Id().Value().c_str());
    stringer.Key(keyOf<Form::mediaAsset>);
    return Details::AppendReference(stringer, assetBlock.MediaAssetRef(), timepointConverter_);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
