#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToTimePointConverter.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadTimePoint.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

JsonToTimePointConverter::~JsonToTimePointConverter() = default;

Common::Serialization::Result JsonToTimePointConverter::To(const Common::Serialization::Json::JsonObject& json,
                                                           TimePoints::TimePoint& timePoint) const
{
    return Details::ReadTimePoint(json, timePoint);
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
