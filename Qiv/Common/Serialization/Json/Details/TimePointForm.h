#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>
#include <Qiv/Common/Serialization/Json/Details/NanosecondsKey.h>

namespace Qiv::Common::Serialization::Json::Details
{

/// {"_type":"TimePoint","value":"<nanoseconds>"}
struct TimePointForm : JsonForm<TimePointForm>
{
    static constexpr std::string_view tag = "TimePoint";
    static constexpr const char* emptyMessage = "TimePoint is empty";
    static constexpr const char* invalidValueMessage = "Invalid TimePoint value";

    static constexpr Member value{nanosecondsKey, JsonType::Nanoseconds};

    static constexpr auto members = ListOf(type, value);
};

} // namespace Qiv::Common::Serialization::Json::Details
