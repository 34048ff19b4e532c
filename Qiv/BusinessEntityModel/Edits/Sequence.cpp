#include <Qiv/BusinessEntityModel/Edits/Sequence.h>

namespace Qiv::BusinessEntityModel::Edits
{

bool Sequence::operator==(const Sequence& other) const noexcept
{
    return id_ == other.id_ && name_ == other.name_;
}

} // namespace Qiv::BusinessEntityModel::Edits
