#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryOrigin.h>

#include <ostream>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

namespace
{

constexpr BusinessEntityModel::BaseTypes::EnumerationText<BoundaryOrigin> texts[] = {
    {BoundaryOrigin::Absolute, "Absolute"},
    {BoundaryOrigin::RelativeToCorrespondingMediaBoundary, "RelativeToCorrespondingMediaBoundary"},
    {BoundaryOrigin::RelativeToOppositeMediaBoundary, "RelativeToOppositeMediaBoundary"},
    {BoundaryOrigin::RelativeToOppositeLoadBoundary, "RelativeToOppositeLoadBoundary"},
};

} // namespace

const std::string& ToString(BoundaryOrigin value)
{
    return BusinessEntityModel::BaseTypes::TextOf<texts>(value);
}

BoundaryOrigin ToBoundaryOrigin(const std::string& text)
{
    return To<BoundaryOrigin>(text);
}

bool FromText(std::string_view text, BoundaryOrigin& value) noexcept
{
    return BusinessEntityModel::BaseTypes::FindEnumerator(texts, text,
                                                          BoundaryOrigin::RelativeToCorrespondingMediaBoundary, value);
}

std::ostream& operator<<(std::ostream& stream, BoundaryOrigin value)
{
    return stream << ToString(value);
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
