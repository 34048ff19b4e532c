#pragma once

#include <Qiv/Common/Serialization/Json/FromJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>
#include <Qiv/TimePoints/TimePoint.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

/// Reads a time point: `{"_type":"TimePoint","value":"1458569109680000000"}`, nanoseconds.
///
/// "value" is a whole decimal number of 64 bits, as a string (a sign is accepted) or as a JSON integer; "_type" is
/// compared when it is a string. Failures leave the target untouched: "TimePoint is empty" for null, a value that is no
/// object, and an object without members; "Invalid type X : TimePoint expected"; "Invalid TimePoint value".
/// Throws nothing but `std::bad_alloc`.
class QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT JsonToTimePointConverter
    : public Common::Serialization::Json::FromJsonConverter<TimePoints::TimePoint>
{
public:
    ~JsonToTimePointConverter() override;

    using FromJsonConverter::To;
    Common::Serialization::Result To(const Common::Serialization::Json::JsonObject& json,
                                     TimePoints::TimePoint& timePoint) const override;
};

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
