#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

MediaIO::~MediaIO() = default;

BusinessEntityModel::BaseTypes::EditorialMetadata& MediaIO::Metadata() noexcept
{
    return metadata_;
}

const BusinessEntityModel::BaseTypes::EditorialMetadata& MediaIO::Metadata() const noexcept
{
    return metadata_;
}

bool MediaIO::HasEqualCommonMembers(const MediaIO& other) const
{
    return id_ == other.id_ && name_ == other.name_ && mediaAssetOnAir_ == other.mediaAssetOnAir_ &&
           metadata_ == other.metadata_;
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
