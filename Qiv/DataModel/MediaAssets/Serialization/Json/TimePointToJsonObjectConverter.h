#pragma once

#include <Qiv/Common/Serialization/Json/ToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>
#include <Qiv/TimePoints/TimePoint.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

/// Writes a time point as `{"_type":"TimePoint","value":"<nanoseconds>"}`, an empty one too. Always succeeds.
class QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT TimePointToJsonObjectConverter
    : public Common::Serialization::Json::ToJsonConverter<TimePoints::TimePoint>
{
public:
    ~TimePointToJsonObjectConverter() override;

    using ToJsonConverter::To;
    Common::Serialization::Result To(const TimePoints::TimePoint& timePoint,
                                     Common::Serialization::Json::Stringer& stringer) const override;
};

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
