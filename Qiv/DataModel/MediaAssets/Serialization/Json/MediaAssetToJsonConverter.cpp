#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>

#include <utility>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

using namespace Common::Serialization::Json;
using Common::Serialization::Result;
using TimePoints::TimePoint;

namespace
{

Result AppendMembers(const MediaAsset& mediaAsset, const ToJsonConverter<TimePoint>& timePoints, Stringer& stringer)
{
    stringer.Member("_type", "MediaAsset");
    stringer.Member("id", mediaAsset.Id().Value().c_str());
    if (!mediaAsset.Name().empty())
        stringer.Member("name", mediaAsset.Name().c_str());
    if (mediaAsset.InPoint() != TimePoint::Empty())
    {
        stringer.Key("inPoint");
        if (auto result = AppendNested(stringer, timePoints, mediaAsset.InPoint()); !result)
            return result;
    }
    if (mediaAsset.OutPoint() != TimePoint::Empty())
    {
        stringer.Key("outPoint");
        if (auto result = AppendNested(stringer, timePoints, mediaAsset.OutPoint()); !result)
            return result;
    }
    return {};
}

} // namespace

MediaAssetToJsonConverter::MediaAssetToJsonConverter() : MediaAssetToJsonConverter(nullptr) {}

MediaAssetToJsonConverter::MediaAssetToJsonConverter(std::shared_ptr<TimePointWriter> timepointConverter)
    : timepointConverter_(std::move(timepointConverter))
{
}

MediaAssetToJsonConverter::~MediaAssetToJsonConverter() = default;

Result MediaAssetToJsonConverter::To(const MediaAsset& mediaAsset, Stringer& stringer) const
{
    const TimePointToJsonObjectConverter defaultConverter;
    const TimePointWriter* const timePoints = timepointConverter_ ? timepointConverter_.get() : &defaultConverter;

    stringer.Object();
    auto result = AppendMembers(mediaAsset, *timePoints, stringer);
    stringer.CloseObject();
    return result;
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
