#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Reads the operator profile from a channel's flat metadata object: "qiv.peloperator.serverId", an integer that is at
/// least 1 and a multiple of 10, and "qiv.peloperator.index", an integer. Other values leave their field as it is.
///
/// Succeeds when at least one of the two is usable. Failure: "PelOperatorMetadataProfile is empty", also for a value
/// that is no object.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT JsonToPelOperatorMetaDataConverter
    : public FromJsonConverter<Tarvonel::MediaIOs::PelOperatorMetadataProfile>
{
public:
    ~JsonToPelOperatorMetaDataConverter() override;

    using FromJsonConverter::To;
    Result To(const JsonObject& json, Tarvonel::MediaIOs::PelOperatorMetadataProfile& profile) const override;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
