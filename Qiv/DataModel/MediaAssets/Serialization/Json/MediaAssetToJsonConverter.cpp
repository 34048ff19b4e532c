#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/MediaAssetForm.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>

#include <utility>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

using namespace Common::Serialization::Json;
using Common::Serialization::Result;
using Common::Serialization::Json::Details::keyOf;
using TimePoints::TimePoint;

namespace
{

Result AppendMembers(const MediaAsset& mediaAsset, const ToJsonConverter<TimePoint>& timePoints, Stringer& stringer)
{
    using Form = Details::MediaAssetForm;

    stringer.Member(keyOf<Form::type>, Form::tag);
    stringer.Member(keyOf<Form::id>, mediaAsset.Id().Value().c_str());
    if (!mediaAsset.Name().empty())
        stringer.Member(keyOf<Form::name>, mediaAsset.Name().c_str());
    if (mediaAsset.InPoint() != TimePoint::Empty())
    {
        stringer.Key(keyOf<Form::inPoint>);
        if (auto result = AppendNested(stringer, timePoints, mediaAsset.InPoint()); !result)
            return result;
    }
    if (mediaAsset.OutPoint() != TimePoint::Empty())
    {
        stringer.Key(keyOf<Form::outPoint>);
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

    const auto object = stringer.ObjectScope();
    return AppendMembers(mediaAsset, *timePoints, stringer);
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
