#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadTimePoint.h>

#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>
#include <Qiv/Common/Serialization/Json/Details/TimePointForm.h>
#include <Qiv/TimePoints/Details/Digits.h>

#include <charconv>
#include <string_view>
#include <system_error>

namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
{

using namespace Common::Serialization::Json::Details;
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

} // namespace

std::optional<std::int64_t> NanosecondsOf(ValueView value) noexcept
{
    const auto text = value.Text();
    return text ? WholeNumber(*text) : value.Int64();
}

Result ReadTimePoint(ValueView json, TimePoint& timePoint)
{
    using Form = TimePointForm;

    const KnownMembers<Form> members(json);
    if (auto result = members.CheckShape(); !result)
        return result;

    const auto nanoseconds = NanosecondsOf(members.Get<Form::value>());
    if (!nanoseconds)
        return Form::invalidValueMessage;
    timePoint = TimePoint(*nanoseconds);
    return {};
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
