#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaOutputConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelReading.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToBoundaryConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSequenceOutputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSpeedConverter.h>
#include <Qiv/TimePoints/Details/Digits.h>

#include <charconv>
#include <memory>
#include <string>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace Common::Serialization::Json;
using Details::ChannelKey;
using Details::ChannelMembers;
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

namespace
{

// Reads a number as `std::stoll` does: leading blanks and a sign are accepted, and what follows the digits is ignored.
// Throws what it throws, "stoll", when there is no number or when 64 bits can't hold it. That ends the process, since
// the caller is declared not to throw. Kept: callers rely on a broken time point on air never going unnoticed. Not
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

std::optional<TimePoint> TimePointOf(const JsonObject& json)
{
    using Key = NanosecondsObjectKeys::Index;

    const KnownMembers<NanosecondsObjectKeys> members(json);
    if (members.Text(Key::Type) != "TimePoint")
        return std::nullopt;
    if (const auto text = members.Text(Key::Value))
        return TimePoint(LeadingNumber(*text));
    const auto* const number = members.Any(Key::Value);
    return number != nullptr && number->isInt64() ? std::optional<TimePoint>(number->asInt64()) : std::nullopt;
}

} // namespace

JsonToMediaOutputConverter::~JsonToMediaOutputConverter() = default;

Result JsonToMediaOutputConverter::To(const JsonObject& json, MediaOutput& channel) const noexcept
{
    const ChannelMembers members(json);
    if (members.IsEmpty())
        return "MediaOutput is empty";
    if (auto result = CheckType(members.Text(ChannelKey::Type), "MediaOutput"); !result)
        return result;
    if (auto result = Details::AppendCommon(members, channel); !result)
        return result;
    return Details::AppendOutput(members, channel);
}

Result JsonToMediaOutputConverter::Append(const JsonObject& json, MediaOutput& channel) const noexcept
{
    return Details::AppendOutput(ChannelMembers(json), channel);
}

// The order of reading differs from the order of writing: "sequence" comes before the members on air. It decides what
// stays applied when a member fails.
Result Details::AppendOutput(const ChannelMembers& members, MediaOutput& channel) noexcept
{
    if (const auto text = members.Text(ChannelKey::PlayingStatus))
        channel.PlayingStatus(To<PlayingStatus>(*text));

    if (const auto* speedOnAir = members.Object(ChannelKey::SpeedOnAir))
    {
        Speed speed(0, 0); // not the current speed: a member that the object lacks becomes 0
        if (auto result = JsonToSpeedConverter().To(*speedOnAir, speed); !result)
            return result;
        channel.SpeedOnAir(speed);
    }

    if (const auto text = members.Text(ChannelKey::GlobalLoopMode))
        channel.GlobalLoopMode(To<PlayingLoopMode>(*text));

    if (auto duration = DurationOf(members, ChannelKey::RemainingTime))
        channel.RemainingTime(*duration);

    if (const auto* sequence = members.Object(ChannelKey::Sequence))
    {
        // Never destroyed, so that channels can still be read while the process ends.
        static const auto& sequenceOutputConverter = *new JsonToSequenceOutputConverter;
        SequenceOutput sequenceOutput;
        if (auto result = sequenceOutputConverter.To(*sequence, sequenceOutput); !result)
            return result;
        channel.Sequence(std::move(sequenceOutput));
    }

    if (const auto* timePointOnAir = members.Object(ChannelKey::CurrentTimePointOnAir))
    {
        if (const auto timePoint = TimePointOf(*timePointOnAir))
            channel.CurrentTimePointOnAir(*timePoint);
    }

    if (const auto timeCode = TimeCodeOf(members, ChannelKey::TodTimecodeOnAir))
        channel.TodTimecodeOnAir(*timeCode);

    if (const auto timeCode = TimeCodeOf(members, ChannelKey::UserTimecodeOnAir))
        channel.UserTimecodeOnAir(*timeCode);

    if (const auto text = members.Text(ChannelKey::PrimaryTimecodeType))
        channel.PrimaryTimecodeType(To<TimecodePrimary>(*text));

    if (const auto* inBoundary = members.Object(ChannelKey::InBoundary))
    {
        std::unique_ptr<Boundary> boundary;
        if (auto result = JsonToBoundaryConverter().To(*inBoundary, boundary); !result)
            return result;
        channel.InBoundary(std::move(boundary));
    }

    if (const auto* outBoundary = members.Object(ChannelKey::OutBoundary))
    {
        std::unique_ptr<Boundary> boundary;
        if (auto result = JsonToBoundaryConverter().To(*outBoundary, boundary); !result)
            return result;
        channel.OutBoundary(std::move(boundary));
    }

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
