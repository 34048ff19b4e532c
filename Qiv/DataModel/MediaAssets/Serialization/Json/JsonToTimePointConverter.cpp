#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToTimePointConverter.h>

#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/TimePoints/Details/Digits.h>

#include <charconv>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

using namespace Common::Serialization::Json;
using Common::Serialization::Result;
using TimePoints::TimePoint;

namespace
{

std::optional<std::int64_t> WholeNumber(std::string_view text) noexcept
{
    if (const auto digits = TimePoints::Details::DigitsToNumber(text); digits && *digits <= INT64_MAX)
        return static_cast<std::int64_t>(*digits);
    if (text.substr(0, 1) == "+" && text.substr(1, 1) != "-")
        text.remove_prefix(1);
    std::int64_t number = 0;
    const auto* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional<std::int64_t>(number) : std::nullopt;
}

std::optional<std::int64_t> WholeNumber(const JsonObject* number)
{
    return number != nullptr && number->isInt64() ? std::optional<std::int64_t>(number->asInt64()) : std::nullopt;
}

} // namespace

JsonToTimePointConverter::~JsonToTimePointConverter() = default;

Result JsonToTimePointConverter::To(const JsonObject& json, TimePoint& timePoint) const
{
    using Key = NanosecondsObjectKeys::Index;

    const KnownMembers<NanosecondsObjectKeys> members(json);
    if (members.IsEmpty())
        return "TimePoint is empty";
    if (auto result = CheckType(members.Text(Key::Type), "TimePoint"); !result)
        return result;

    const auto text = members.Text(Key::Value);
    const auto nanoseconds = text ? WholeNumber(*text) : WholeNumber(members.Any(Key::Value));
    if (!nanoseconds)
        return "Invalid TimePoint value";
    timePoint = TimePoint(*nanoseconds);
    return {};
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
