#include <Qiv/Common/Serialization/Json/Details/TimePointForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>
#include <Qiv/TimePoints/Details/Digits.h>

#include <charconv>
#include <memory>
#include <string>
#include <system_error>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::KnownMembers;
using Common::Serialization::Json::Details::TimePointForm;
using MediaAssets::TimecodePrimary;
using Tarvonel::MediaIOs::Boundary;
using Tarvonel::MediaIOs::MediaOutput;
using Tarvonel::MediaIOs::PlayingLoopMode;
using Tarvonel::MediaIOs::PlayingStatus;
using Tarvonel::MediaIOs::SequenceOutput;
using Tarvonel::MediaIOs::Speed;
using Tarvonel::MediaIOs::To;
using TimePoints::TimePoint;
using TimePoints::Details::DigitsToNumber;
using Form = ChannelForm;

namespace
{

// Reads a number as `std::stoll` does: leading blanks and a sign are accepted, and what follows the digits is ignored.
// Throws what it throws, "stoll", when there is no number or when 64 bits can't hold it. That ends the process, since
// the converter is declared not to throw. Kept: callers rely on a broken time point on air never going unnoticed. Not
// inline, so that the terminate handler still finds the exception and its text.
[[gnu::noinline]] std::int64_t LeadingNumber(std::string_view text)
{
    if (const auto digits = DigitsToNumber(text); digits && *digits <= INT64_MAX)
        return static_cast<std::int64_t>(*digits);
    std::int64_t number = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc())
        return number;
    return std::stoll(std::string(text));
}

// Unlike the reader of time points, this asks for "_type", and skips what does not fit rather than failing.
std::optional<TimePoint> TimePointOnAir(ValueView json)
{
    const KnownMembers<TimePointForm> members(json);
    if (members.Get<TimePointForm::type>() != TimePointForm::tag)
        return std::nullopt;
    const auto value = members.Get<TimePointForm::value>();
    if (const auto text = value.Text())
        return TimePoint(LeadingNumber(*text));
    const auto number = value.Int64();
    return number ? std::optional<TimePoint>(*number) : std::nullopt;
}

} // namespace

Result ReadMediaOutput(ValueView json, MediaOutput& channel)
{
    const ChannelMembers members(json);
    if (auto result = members.CheckShape(Form::emptyPlayerMessage, Form::playerTag); !result)
        return result;
    if (auto result = ApplyCommonMembers(members, channel); !result)
        return result;
    return ApplyPlayerMembers(members, channel);
}

Result AppendPlayerMembers(ValueView json, MediaOutput& channel)
{
    return ApplyPlayerMembers(ChannelMembers(json), channel);
}

// The order of reading differs from the order of writing: "sequence" comes before the members on air. It decides what
// stays applied when a member fails.
Result ApplyPlayerMembers(const ChannelMembers& members, MediaOutput& channel)
{
    if (const auto text = members.Get<Form::playingStatus>())
        channel.PlayingStatus(To<PlayingStatus>(*text));

    if (const auto speedOnAir = members.Get<Form::speedOnAir>())
    {
        Speed speed(0, 0); // not the current speed: a member that the object lacks becomes 0
        if (auto result = ReadSpeed(speedOnAir, speed); !result)
            return result;
        channel.SpeedOnAir(speed);
    }

    if (const auto text = members.Get<Form::globalLoopMode>())
        channel.GlobalLoopMode(To<PlayingLoopMode>(*text));

    if (auto duration = DurationOf(members.Get<Form::remainingTime>()))
        channel.RemainingTime(*duration);

    if (const auto sequence = members.Get<Form::sequence>())
    {
        SequenceOutput sequenceOutput;
        if (auto result = ReadSequenceOutput(sequence, sequenceOutput); !result)
            return result;
        channel.Sequence(std::move(sequenceOutput));
    }

    if (const auto currentTimePointOnAir = members.Get<Form::currentTimePointOnAir>())
    {
        if (const auto timePoint = TimePointOnAir(currentTimePointOnAir))
            channel.CurrentTimePointOnAir(*timePoint);
    }

    if (const auto timeCode = TimeCodeOf(members.Get<Form::todTimecodeOnAir>()))
        channel.TodTimecodeOnAir(*timeCode);

    if (const auto timeCode = TimeCodeOf(members.Get<Form::userTimecodeOnAir>()))
        channel.UserTimecodeOnAir(*timeCode);

    if (const auto text = members.Get<Form::primaryTimecodeType>())
        channel.PrimaryTimecodeType(To<TimecodePrimary>(*text));

    if (const auto inBoundary = members.Get<Form::inBoundary>())
    {
        std::unique_ptr<Boundary> boundary;
        if (auto result = ReadBoundary(inBoundary, boundary); !result)
            return result;
        channel.InBoundary(std::move(boundary));
    }

    if (const auto outBoundary = members.Get<Form::outBoundary>())
    {
        std::unique_ptr<Boundary> boundary;
        if (auto result = ReadBoundary(outBoundary, boundary); !result)
            return result;
        channel.OutBoundary(std::move(boundary));
    }

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
