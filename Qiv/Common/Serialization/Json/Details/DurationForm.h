#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>
#include <Qiv/Common/Serialization/Json/Details/NanosecondsKey.h>

namespace Qiv::Common::Serialization::Json::Details
{

/// {"_type":"Duration","value":"<nanoseconds>"}
struct DurationForm : JsonForm<DurationForm>
{
    static constexpr std::string_view tag = "Duration";

    static constexpr Member value{nanosecondsKey, JsonType::Text};

    static constexpr auto members = ListOf(type, value);
};

} // namespace Qiv::Common::Serialization::Json::Details
