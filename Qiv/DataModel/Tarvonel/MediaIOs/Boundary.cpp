#include <Qiv/DataModel/Tarvonel/MediaIOs/Boundary.h>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

Boundary::~Boundary() = default;

bool Boundary::operator==(const Boundary& other) const
{
    return Equals(other);
}

bool Boundary::operator!=(const Boundary& other) const
{
    return !Equals(other);
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
