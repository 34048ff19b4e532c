#pragma once

#include <Qiv/Common/Serialization/Json/Details/DurationForm.h>
#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/TimePoints/Duration.h>
#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>
#include <Qiv/TimePoints/TimeCode.h>

#include <optional>
#include <string_view>

/// What the readers of channels share. The members of a channel object are found once, in one walk, and then applied by
/// each reader in its own order.
namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using ChannelMembers = Common::Serialization::Json::Details::KnownMembers<ChannelForm>;

/// What `ReadMediaIO` of Readers.h does.
Common::Serialization::Result ReadMediaIO(const ChannelMembers& members, Tarvonel::MediaIOs::MediaIO& channel);
/// Applies the members that channels of both kinds have, and those of each kind.
Common::Serialization::Result ApplyCommonMembers(const ChannelMembers& members, Tarvonel::MediaIOs::MediaIO& channel);
Common::Serialization::Result ApplyRecorderMembers(const ChannelMembers& members,
                                                   Tarvonel::MediaIOs::MediaInput& channel);
Common::Serialization::Result ApplyPlayerMembers(const ChannelMembers& members,
                                                 Tarvonel::MediaIOs::MediaOutput& channel);

/// The time code that a text member holds; nothing when the member is absent, no text, or no valid time code.
inline std::optional<TimePoints::TimeCode> TimeCodeOf(std::optional<std::string_view> text) noexcept
{
    TimePoints::TimeCode timeCode;
    return text && TimePoints::QivTimeCodeParser::TryRead(*text, timeCode)
               ? std::optional<TimePoints::TimeCode>(timeCode)
               : std::nullopt;
}

/// The duration of a member `{"_type":"Duration","value":"<nanoseconds>"}`; nothing when it has another form.
inline std::optional<TimePoints::Duration> DurationOf(Common::Serialization::Json::Details::ValueView object) noexcept
{
    using Form = Common::Serialization::Json::Details::DurationForm;

    if (!object)
        return std::nullopt;
    const Common::Serialization::Json::Details::KnownMembers<Form> members(object);
    const auto value = members.Get<Form::value>();
    if (members.Get<Form::type>() != Form::tag || !value)
        return std::nullopt;

    TimePoints::Duration duration;
    return TimePoints::QivDurationParser::TryRead(*value, duration) ? std::optional<TimePoints::Duration>(duration)
                                                                    : std::nullopt;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
