#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Export.h>

#include <cstdint>
#include <memory>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// Which operator works on the channel, and from which server.
class QIV_DATAMODEL_TARVONEL_EXPORT PelOperatorMetadataProfile : public BusinessEntityModel::BaseTypes::MetadataProfile
{
public:
    /// The serial number that stands for "no server".
    static constexpr std::int32_t EmptyServerSerialNumber() noexcept { return 0; }

    PelOperatorMetadataProfile() = default;
    PelOperatorMetadataProfile(const PelOperatorMetadataProfile&) = default;
    PelOperatorMetadataProfile& operator=(const PelOperatorMetadataProfile&) = default;
    ~PelOperatorMetadataProfile() override;

    /// The name of the profile in every dictionary.
    static constexpr std::string_view Name() noexcept { return "qiv.peloperator"; }

    /// Always `Name()`.
    BusinessEntityModel::BaseTypes::FullyQualifiedName FullyQualifiedName() const override;
    /// True when `other` is an operator profile with the same server and index.
    bool Equals(const BusinessEntityModel::BaseTypes::MetadataProfile& other) const override;
    std::shared_ptr<BusinessEntityModel::BaseTypes::MetadataProfile> Clone() const override;

    /// The serial number of the server on which the operator works, by default `EmptyServerSerialNumber()`. Any number
    /// is stored; serial numbers of servers are positive multiples of 10, and documents are read for these only.
    std::int32_t ServerId() const noexcept { return serverId_; }
    void ServerId(std::int32_t serverId) { serverId_ = serverId; }

    /// The operator's index, by default 0. Any number is stored; a negative one is left out of documents.
    std::int32_t Index() const noexcept { return index_; }
    void Index(std::int32_t index) { index_ = index; }

private:
    std::int32_t serverId_ = EmptyServerSerialNumber();
    std::int32_t index_ = 0;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
