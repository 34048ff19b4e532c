#pragma once

#include <Qiv/Common/Serialization/Json/FromJsonConverter.h>
#include <Qiv/Common/Serialization/Json/ToJsonConverter.h>
#include <Qiv/TimePoints/TimePoint.h>

#include <memory>

/// The names that all converters of this namespace are declared with.
namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Common::Serialization::Result;
using Common::Serialization::Json::FromJsonConverter;
using Common::Serialization::Json::JsonObject;
using Common::Serialization::Json::Stringer;
using Common::Serialization::Json::ToJsonConverter;

/// A writer of time points that several converters may share.
using SharedTimePointWriter = std::shared_ptr<ToJsonConverter<TimePoints::TimePoint>>;

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
