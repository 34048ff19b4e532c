#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToPelOperatorMetaDataConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace Common::Serialization::Json;
using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

JsonToPelOperatorMetaDataConverter::~JsonToPelOperatorMetaDataConverter() = default;

Result JsonToPelOperatorMetaDataConverter::To(const JsonObject& json, PelOperatorMetadataProfile& profile) const
{
    // Two look-ups rather than a walk: the object may hold any number of members of other profiles.
    const auto serverId = IfInt(FindMember(json, "qiv.peloperator.serverId"));
    const bool hasServerId = serverId && *serverId >= 1 && *serverId % 10 == 0;
    if (hasServerId)
        profile.ServerId(*serverId);

    const auto index = IfInt(FindMember(json, "qiv.peloperator.index"));
    if (index)
        profile.Index(*index);

    return hasServerId || index ? Result() : Result("PelOperatorMetadataProfile is empty");
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
