#include <Qiv/DataModel/MediaAssets/MediaAsset.h>

namespace Qiv::DataModel::MediaAssets
{

bool MediaAsset::operator==(const MediaAsset& other) const noexcept
{
    return id_ == other.id_ && name_ == other.name_ && inPoint_ == other.inPoint_ && outPoint_ == other.outPoint_;
}

} // namespace Qiv::DataModel::MediaAssets
