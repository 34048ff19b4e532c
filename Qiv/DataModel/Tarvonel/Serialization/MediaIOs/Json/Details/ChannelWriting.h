#pragma once

#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/TimeCode.h>

/// What the writers of channels share: members that are left out when they are empty.
namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

inline void AppendUnlessEmpty(Common::Serialization::Json::Stringer& stringer, const char* key,
                              const TimePoints::TimeCode& timeCode)
{
    if (timeCode == TimePoints::TimeCode::Empty())
        return;
    char text[TimePoints::QivTimeCodeFormatter::MaximumLength];
    stringer.Key(key).Value(TimePoints::QivTimeCodeFormatter::FormatTo(timeCode, text));
}

inline void AppendUnlessEmpty(Common::Serialization::Json::Stringer& stringer, const char* key,
                              const TimePoints::Duration& duration)
{
    if (duration == TimePoints::Duration::Empty())
        return;
    stringer.Key(key);
    AppendNanosecondsObject(stringer, "Duration", duration.Nanoseconds());
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
