#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Writes the members of the operator profile into the metadata object that the caller has open:
/// "qiv.peloperator.serverId" unless it is that of the empty server identifier, "qiv.peloperator.index" unless it is
/// negative. Opens and closes no object of its own. Always succeeds.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT PelOperatorMetadataProfileToJsonConverter
    : public ToJsonConverter<Tarvonel::MediaIOs::PelOperatorMetadataProfile>
{
public:
    ~PelOperatorMetadataProfileToJsonConverter() override;

    using ToJsonConverter::To;
    Result To(const Tarvonel::MediaIOs::PelOperatorMetadataProfile& profile, Stringer& stringer) const override;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
