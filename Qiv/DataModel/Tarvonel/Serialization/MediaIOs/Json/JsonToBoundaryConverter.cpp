#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToBoundaryConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToTimePointConverter.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>

#include <stdexcept>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace Common::Serialization::Json;
using MediaAssets::Serialization::Json::JsonToTimePointConverter;
using Tarvonel::MediaIOs::Boundary;
using Tarvonel::MediaIOs::BoundaryAbsolute;
using Tarvonel::MediaIOs::BoundaryOrigin;
using Tarvonel::MediaIOs::BoundaryRelative;
using Tarvonel::MediaIOs::To;
using TimePoints::TimePoint;

namespace
{

struct Keys
{
    enum class Index
    {
        Type,
        Offset,
        Origin,
        Timepoint
    };
    static constexpr std::array<std::string_view, 4> names{"_type", "offset", "origin", "timepoint"};
};
using Key = Keys::Index;
using BoundaryMembers = KnownMembers<Keys>;

Result ReadAbsolute(const BoundaryMembers& members, std::unique_ptr<Boundary>& boundary)
{
    boundary = std::make_unique<BoundaryAbsolute>();
    const auto* const timepoint = members.Any(Key::Timepoint);
    if (timepoint == nullptr)
        return {};

    // Never destroyed, so that boundaries can still be read while the process ends.
    static const auto& timePointConverter = *new JsonToTimePointConverter;
    TimePoint value;
    if (auto result = timePointConverter.To(*timepoint, value); !result)
        return result;
    static_cast<BoundaryAbsolute&>(*boundary).Timepoint(value);
    return {};
}

// Not inline, so that the terminate handler still finds the exception and its text.
[[gnu::noinline]] Result ReadRelative(const BoundaryMembers& members, std::unique_ptr<Boundary>& boundary)
{
    auto relative = std::make_unique<BoundaryRelative>(BoundaryOrigin::RelativeToCorrespondingMediaBoundary, 0);
    auto& target = *relative;
    boundary = std::move(relative);

    if (const auto text = members.Text(Key::Origin))
    {
        const auto origin = To<BoundaryOrigin>(*text);
        // Ends the process, since the callers are declared not to throw. Kept: callers rely on a relative boundary
        // never being read as an absolute one.
        if (origin == BoundaryOrigin::Absolute)
            throw std::runtime_error("Bad origin for BoundaryRelative");
        target.Origin(origin);
    }

    if (const auto offset = members.Int(Key::Offset))
        target.Offset(*offset);

    return {};
}

Result ReadAny(const BoundaryMembers& members, std::unique_ptr<Boundary>& boundary)
{
    const auto type = members.Text(Key::Type);
    if (type == "BoundaryAbsolute")
        return ReadAbsolute(members, boundary);
    if (type == "BoundaryRelative")
        return ReadRelative(members, boundary);
    return "Invalid _type";
}

} // namespace

JsonToBoundaryConverter::~JsonToBoundaryConverter() = default;

Result JsonToBoundaryConverter::To(const JsonObject& json, std::unique_ptr<Boundary>& boundary) const noexcept
{
    const BoundaryMembers members(json);
    return members.IsEmpty() ? Result("Boundary is empty") : ReadAny(members, boundary);
}

Result JsonToBoundaryConverter::Append(const JsonObject& json, std::unique_ptr<Boundary>& boundary) const noexcept
{
    return ReadAny(BoundaryMembers(json), boundary);
}

Result JsonToBoundaryConverter::AppendBoundaryAbsolute(const JsonObject& json,
                                                       std::unique_ptr<Boundary>& boundary) const noexcept
{
    return ReadAbsolute(BoundaryMembers(json), boundary);
}

Result JsonToBoundaryConverter::AppendBoundaryRelative(const JsonObject& json,
                                                       std::unique_ptr<Boundary>& boundary) const noexcept
{
    return ReadRelative(BoundaryMembers(json), boundary);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
