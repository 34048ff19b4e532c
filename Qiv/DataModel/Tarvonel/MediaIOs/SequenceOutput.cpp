#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

bool SequenceOutput::AssetBlockOutput::operator==(const AssetBlockOutput& other) const noexcept
{
    return id_ == other.id_ && mediaAssetRef_ == other.mediaAssetRef_;
}

bool SequenceOutput::operator==(const SequenceOutput& other) const
{
    return sequenceOnAir_ == other.sequenceOnAir_ && assetBlockOnAir_ == other.assetBlockOnAir_ &&
           nextAssetBlockOnAir_ == other.nextAssetBlockOnAir_ && editMode_ == other.editMode_;
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
