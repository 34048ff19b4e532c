#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/PelOperatorMetadataProfileToJsonConverter.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

PelOperatorMetadataProfileToJsonConverter::~PelOperatorMetadataProfileToJsonConverter() = default;

Result PelOperatorMetadataProfileToJsonConverter::To(const PelOperatorMetadataProfile& profile,
                                                     Stringer& stringer) const
{
    if (profile.ServerId() != PelOperatorMetadataProfile::EmptyServerSerialNumber())
        stringer.Key("qiv.peloperator.serverId").Value(profile.ServerId());
    if (profile.Index() >= 0)
        stringer.Key("qiv.peloperator.index").Value(profile.Index());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
