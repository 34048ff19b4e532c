#pragma once

#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/TimeCode.h>

/// What the writers of channels share.
namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

/// The work of MediaIOToJsonConverter::AppendMediaIO, beside it.
Result AppendCommon(Stringer& stringer, const Tarvonel::MediaIOs::MediaIO& channel);

inline void AppendUnlessEmpty(Stringer& stringer, const char* key, const TimePoints::TimeCode& timeCode)
{
    if (timeCode == TimePoints::TimeCode::Empty())
        return;
    char text[TimePoints::QivTimeCodeFormatter::MaximumLength];
    stringer.Member(key, TimePoints::QivTimeCodeFormatter::FormatTo(timeCode, text));
}

inline void AppendUnlessEmpty(Stringer& stringer, const char* key, const TimePoints::Duration& duration)
{
    if (duration == TimePoints::Duration::Empty())
        return;
    stringer.Key(key);
    AppendNanosecondsObject(stringer, "Duration", duration.Nanoseconds());
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
