#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfile.h>

namespace Qiv::BusinessEntityModel::BaseTypes
{

MetadataProfile::~MetadataProfile() = default;

std::string MetadataProfile::ToString() const
{
    return FullyQualifiedName();
}

} // namespace Qiv::BusinessEntityModel::BaseTypes
