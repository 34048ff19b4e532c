#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>

#include <Qiv/Common/Serialization/Json/Details/TimePointForm.h>
#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

TimePointToJsonObjectConverter::~TimePointToJsonObjectConverter() = default;

Common::Serialization::Result TimePointToJsonObjectConverter::To(const TimePoints::TimePoint& timePoint,
                                                                 Common::Serialization::Json::Stringer& stringer) const
{
    AppendNanosecondsObject(stringer, Common::Serialization::Json::Details::TimePointForm::tag,
                            timePoint.Nanoseconds());
    return {};
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
