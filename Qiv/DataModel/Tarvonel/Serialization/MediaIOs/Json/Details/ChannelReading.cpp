#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelReading.h>

#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using namespace Common::Serialization::Json;
using TimePoints::Duration;
using TimePoints::QivDurationParser;
using TimePoints::QivTimeCodeParser;
using TimePoints::TimeCode;

std::optional<TimeCode> TimeCodeOf(const ChannelMembers& members, ChannelKey key) noexcept
{
    const auto text = members.Text(key);
    TimeCode timeCode;
    return text && QivTimeCodeParser::TryRead(*text, timeCode) ? std::optional<TimeCode>(timeCode) : std::nullopt;
}

std::optional<Duration> DurationOf(const ChannelMembers& members, ChannelKey key) noexcept
{
    using Key = NanosecondsObjectKeys::Index;

    const auto* const object = members.Object(key);
    if (object == nullptr)
        return std::nullopt;
    const KnownMembers<NanosecondsObjectKeys> duration(*object);
    const auto value = duration.Text(Key::Value);
    if (duration.Text(Key::Type) != "Duration" || !value)
        return std::nullopt;

    Duration nanoseconds;
    return QivDurationParser::TryRead(*value, nanoseconds) ? std::optional<Duration>(nanoseconds) : std::nullopt;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
