#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/BoundaryToJsonConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/BoundaryForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Common::Serialization::Json::Details::keyOf;
using Tarvonel::MediaIOs::Boundary;
using Tarvonel::MediaIOs::BoundaryAbsolute;
using Tarvonel::MediaIOs::BoundaryOrigin;
using Tarvonel::MediaIOs::BoundaryRelative;
using TimePoints::TimePoint;
using Form = Details::BoundaryForm;

BoundaryToJsonConverter::BoundaryToJsonConverter() : BoundaryToJsonConverter(nullptr) {}

BoundaryToJsonConverter::BoundaryToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(Details::OrDefault(std::move(timepointConverter)))
{
}

BoundaryToJsonConverter::~BoundaryToJsonConverter() = default;

Result BoundaryToJsonConverter::To(const Boundary& boundary, Stringer& stringer) const noexcept
{
    return Details::WriteBoundary(stringer, boundary, *timepointConverter_);
}

Result BoundaryToJsonConverter::Append(Stringer& stringer, const BoundaryAbsolute& boundary) const noexcept
{
    return Details::AppendBoundary(stringer, boundary, *timepointConverter_);
}

Result BoundaryToJsonConverter::Append(Stringer& stringer, const BoundaryRelative& boundary) const noexcept
{
    return Details::AppendBoundary(stringer, boundary);
}

Result Details::WriteBoundary(Stringer& stringer, const Boundary& boundary,
                              const ToJsonConverter<TimePoint>& timepointConverter)
{
    const auto object = stringer.ObjectScope();
    if (boundary.Origin() != BoundaryOrigin::Absolute)
    {
        const auto* const relative = dynamic_cast<const BoundaryRelative*>(&boundary);
        return relative == nullptr ? Result("Null BoundaryRelative") : AppendBoundary(stringer, *relative);
    }
    const auto* const absolute = dynamic_cast<const BoundaryAbsolute*>(&boundary);
    return absolute == nullptr ? Result("Null BoundaryAbsolute")
                               : AppendBoundary(stringer, *absolute, timepointConverter);
}

Result Details::AppendBoundary(Stringer& stringer, const BoundaryAbsolute& boundary,
                               const ToJsonConverter<TimePoint>& timepointConverter)
{
    stringer.Member(keyOf<Form::type>, Form::absoluteTag);
    if (boundary.Timepoint() != TimePoint::Empty())
    {
        stringer.Key(keyOf<Form::timepoint>);
        // Dropped on purpose: it must not fail the boundary.
        static_cast<void>(AppendNested(stringer, timepointConverter, boundary.Timepoint()));
    }
    return {};
}

Result Details::AppendBoundary(Stringer& stringer, const BoundaryRelative& boundary)
{
    stringer.Member(keyOf<Form::type>, Form::relativeTag);
    stringer.Member(keyOf<Form::origin>, ToString(boundary.Origin()).c_str());
    stringer.Key(keyOf<Form::offset>).Value(boundary.Offset());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
