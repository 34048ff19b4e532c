#pragma once

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>
#include <Qiv/TimePoints/TimePoint.h>

#include <cstdint>
#include <optional>

namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
{

/// What JsonToTimePointConverter does.
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT Common::Serialization::Result
ReadTimePoint(Common::Serialization::Json::Details::ValueView json, TimePoints::TimePoint& timePoint);

/// The nanoseconds of a time point: a whole decimal number of 64 bits, as a text or as a number; otherwise nothing.
QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT std::optional<std::int64_t>
NanosecondsOf(Common::Serialization::Json::Details::ValueView value) noexcept;

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
