#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadTimePoint.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/BoundaryForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

#include <stdexcept>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using MediaAssets::Serialization::Json::Details::ReadTimePoint;
using Tarvonel::MediaIOs::Boundary;
using Tarvonel::MediaIOs::BoundaryAbsolute;
using Tarvonel::MediaIOs::BoundaryOrigin;
using Tarvonel::MediaIOs::BoundaryRelative;
using Tarvonel::MediaIOs::To;
using TimePoints::TimePoint;

namespace
{

using Form = BoundaryForm;
using BoundaryMembers = Common::Serialization::Json::Details::KnownMembers<Form>;

Result ReadAbsolute(const BoundaryMembers& members, std::unique_ptr<Boundary>& boundary)
{
    boundary = std::make_unique<BoundaryAbsolute>();

    if (const auto timepoint = members.Get<Form::timepoint>())
    {
        TimePoint value;
        if (auto result = ReadTimePoint(timepoint, value); !result)
            return result;
        static_cast<BoundaryAbsolute&>(*boundary).Timepoint(value);
    }

    return {};
}

// Not inline, so that the terminate handler still finds the exception and its text.
[[gnu::noinline]] Result ReadRelative(const BoundaryMembers& members, std::unique_ptr<Boundary>& boundary)
{
    auto relative = std::make_unique<BoundaryRelative>(BoundaryOrigin::RelativeToCorrespondingMediaBoundary, 0);
    auto& target = *relative;
    boundary = std::move(relative);

    if (const auto text = members.Get<Form::origin>())
    {
        const auto origin = To<BoundaryOrigin>(*text);
        // Ends the process, since the converter is declared not to throw. Kept: callers rely on a relative boundary
        // never being read as an absolute one.
        if (origin == BoundaryOrigin::Absolute)
            throw std::runtime_error(Form::badOriginMessage);
        target.Origin(origin);
    }

    if (const auto offset = members.Get<Form::offset>())
        target.Offset(*offset);

    return {};
}

Result ReadEither(const BoundaryMembers& members, std::unique_ptr<Boundary>& boundary)
{
    const auto type = members.Get<Form::type>();
    if (type == Form::absoluteTag)
        return ReadAbsolute(members, boundary);
    if (type == Form::relativeTag)
        return ReadRelative(members, boundary);
    return Form::invalidTypeMessage;
}

} // namespace

Result ReadBoundary(ValueView json, std::unique_ptr<Boundary>& boundary)
{
    const BoundaryMembers members(json);
    return members.IsEmpty() ? Result(Form::emptyMessage) : ReadEither(members, boundary);
}

Result AppendBoundary(ValueView json, std::unique_ptr<Boundary>& boundary)
{
    return ReadEither(BoundaryMembers(json), boundary);
}

Result AppendBoundaryAbsolute(ValueView json, std::unique_ptr<Boundary>& boundary)
{
    return ReadAbsolute(BoundaryMembers(json), boundary);
}

Result AppendBoundaryRelative(ValueView json, std::unique_ptr<Boundary>& boundary)
{
    return ReadRelative(BoundaryMembers(json), boundary);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
