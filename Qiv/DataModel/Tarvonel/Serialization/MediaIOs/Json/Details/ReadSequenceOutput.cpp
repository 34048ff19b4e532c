#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Details/ReadSequence.h>
#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadMediaAsset.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadReference.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/AssetBlockForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/MediaAssetReferenceForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceOutputForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceReferenceForm.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using BusinessEntityModel::BaseTypes::Identifier;
using BusinessEntityModel::BaseTypes::SharedReference;
using BusinessEntityModel::Edits::Sequence;
using BusinessEntityModel::Edits::Serialization::Json::Details::ReadSequence;
using Common::Serialization::Json::Details::KnownMembers;
using MediaAssets::MediaAsset;
using MediaAssets::Serialization::Json::Details::ReadMediaAsset;
using MediaAssets::Serialization::Json::Details::ReadReference;
using Tarvonel::MediaIOs::SequenceOutput;

Result ReadSequenceOutput(ValueView json, SequenceOutput& sequenceOutput)
{
    using Form = SequenceOutputForm;

    const KnownMembers<Form> members(json);
    if (auto result = members.CheckShape(); !result)
        return result;

    if (const auto sequenceOnAir = members.Get<Form::sequenceOnAir>())
    {
        SharedReference<Sequence> reference;
        if (auto result = ReadReference<SequenceReferenceForm>(sequenceOnAir, ReadSequence, reference); !result)
            return result;
        sequenceOutput.SequenceOnAir(std::move(reference));
    }

    if (const auto assetBlockOnAir = members.Get<Form::assetBlockOnAir>())
    {
        SequenceOutput::AssetBlockOutput assetBlock;
        if (auto result = ReadAssetBlock(assetBlockOnAir, assetBlock); !result)
            return result;
        sequenceOutput.AssetBlockOnAir(std::move(assetBlock));
    }

    if (const auto nextAssetBlockOnAir = members.Get<Form::nextAssetBlockOnAir>())
    {
        SequenceOutput::AssetBlockOutput assetBlock;
        if (auto result = ReadAssetBlock(nextAssetBlockOnAir, assetBlock); !result)
            return result;
        sequenceOutput.NextAssetBlockOnAir(std::move(assetBlock));
    }

    if (const auto editMode = members.Get<Form::editMode>())
        sequenceOutput.EditMode(*editMode);

    return {};
}

Result ReadAssetBlock(ValueView json, SequenceOutput::AssetBlockOutput& assetBlock)
{
    using Form = AssetBlockForm;

    // No shape check: an empty block is one.
    const KnownMembers<Form> members(json);
    if (auto result = members.CheckType(Form::tag); !result)
        return result;

    if (const auto id = members.Get<Form::id>())
        assetBlock.Id(Identifier(*id));

    if (const auto mediaAsset = members.Get<Form::mediaAsset>())
    {
        SharedReference<MediaAsset> reference;
        if (auto result = ReadReference<MediaAssetReferenceForm>(mediaAsset, ReadMediaAsset, reference); !result)
            return result;
        assetBlock.MediaAssetRef(std::move(reference));
    }

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
