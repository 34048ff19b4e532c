#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

SequenceOutput::AssetBlockOutput::AssetBlockOutput() = default;
SequenceOutput::AssetBlockOutput::AssetBlockOutput(const AssetBlockOutput&) = default;
SequenceOutput::AssetBlockOutput::AssetBlockOutput(AssetBlockOutput&&) noexcept = default;
SequenceOutput::AssetBlockOutput& SequenceOutput::AssetBlockOutput::operator=(const AssetBlockOutput&) = default;
SequenceOutput::AssetBlockOutput& SequenceOutput::AssetBlockOutput::operator=(AssetBlockOutput&&) noexcept = default;
SequenceOutput::AssetBlockOutput::~AssetBlockOutput() = default;

bool SequenceOutput::AssetBlockOutput::operator==(const AssetBlockOutput& other) const noexcept
{
    return id_ == other.id_ && mediaAssetRef_ == other.mediaAssetRef_;
}

SequenceOutput::SequenceOutput() = default;
SequenceOutput::SequenceOutput(const SequenceOutput&) = default;
SequenceOutput::SequenceOutput(SequenceOutput&&) noexcept = default;
SequenceOutput& SequenceOutput::operator=(const SequenceOutput&) = default;
SequenceOutput& SequenceOutput::operator=(SequenceOutput&&) noexcept = default;
SequenceOutput::~SequenceOutput() = default;

bool SequenceOutput::operator==(const SequenceOutput& other) const
{
    return sequenceOnAir_ == other.sequenceOnAir_ && assetBlockOnAir_ == other.assetBlockOnAir_ &&
           nextAssetBlockOnAir_ == other.nextAssetBlockOnAir_ && editMode_ == other.editMode_;
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
