#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

namespace BaseTypes = BusinessEntityModel::BaseTypes;

PelOperatorMetadataProfile::~PelOperatorMetadataProfile() = default;

BaseTypes::FullyQualifiedName PelOperatorMetadataProfile::FullyQualifiedName() const
{
    return BaseTypes::FullyQualifiedName(Name());
}

bool PelOperatorMetadataProfile::Equals(const BaseTypes::MetadataProfile& other) const
{
    const auto* profile = dynamic_cast<const PelOperatorMetadataProfile*>(&other);
    return profile != nullptr && profile->FullyQualifiedName() == FullyQualifiedName() &&
           profile->serverId_ == serverId_ && profile->index_ == index_;
}

std::shared_ptr<BaseTypes::MetadataProfile> PelOperatorMetadataProfile::Clone() const
{
    return std::make_shared<PelOperatorMetadataProfile>(*this);
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
