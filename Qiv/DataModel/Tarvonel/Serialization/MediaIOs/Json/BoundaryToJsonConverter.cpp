#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/BoundaryToJsonConverter.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using MediaAssets::Serialization::Json::TimePointToJsonObjectConverter;
using Tarvonel::MediaIOs::Boundary;
using Tarvonel::MediaIOs::BoundaryAbsolute;
using Tarvonel::MediaIOs::BoundaryOrigin;
using Tarvonel::MediaIOs::BoundaryRelative;
using TimePoints::TimePoint;

BoundaryToJsonConverter::BoundaryToJsonConverter() : BoundaryToJsonConverter(nullptr) {}

BoundaryToJsonConverter::BoundaryToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(timepointConverter ? std::move(timepointConverter)
                                             : std::make_shared<TimePointToJsonObjectConverter>())
{
}

BoundaryToJsonConverter::~BoundaryToJsonConverter() = default;

Result BoundaryToJsonConverter::To(const Boundary& boundary, Stringer& stringer) const noexcept
{
    const auto append = [&]() -> Result
    {
        if (boundary.Origin() != BoundaryOrigin::Absolute)
        {
            const auto* const relative = dynamic_cast<const BoundaryRelative*>(&boundary);
            return relative == nullptr ? Result("Null BoundaryRelative") : Append(stringer, *relative);
        }
        const auto* const absolute = dynamic_cast<const BoundaryAbsolute*>(&boundary);
        return absolute == nullptr ? Result("Null BoundaryAbsolute") : Append(stringer, *absolute);
    };

    stringer.Object();
    auto result = append();
    stringer.CloseObject();
    return result;
}

Result BoundaryToJsonConverter::Append(Stringer& stringer, const BoundaryAbsolute& boundary) const noexcept
{
    stringer.Member("_type", "BoundaryAbsolute");
    if (boundary.Timepoint() != TimePoint::Empty())
    {
        stringer.Key("timepoint");
        // Dropped on purpose: it must not fail the boundary.
        static_cast<void>(AppendNested(stringer, *timepointConverter_, boundary.Timepoint()));
    }
    return {};
}

Result BoundaryToJsonConverter::Append(Stringer& stringer, const BoundaryRelative& boundary) const noexcept
{
    stringer.Member("_type", "BoundaryRelative");
    stringer.Member("origin", ToString(boundary.Origin()).c_str());
    stringer.Key("offset").Value(boundary.Offset());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
