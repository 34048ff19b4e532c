#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToPelOperatorMetaDataConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace Common::Serialization::Json;
using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

namespace
{

struct Keys
{
    enum class Index
    {
        ProfileIndex,
        ServerId
    };
    static constexpr std::array<std::string_view, 2> names{"qiv.peloperator.index", "qiv.peloperator.serverId"};
};
using Key = Keys::Index;

} // namespace

JsonToPelOperatorMetaDataConverter::~JsonToPelOperatorMetaDataConverter() = default;

Result JsonToPelOperatorMetaDataConverter::To(const JsonObject& json, PelOperatorMetadataProfile& profile) const
{
    const KnownMembers<Keys> members(json);

    const auto serverId = members.Int(Key::ServerId);
    const bool hasServerId = serverId && *serverId >= 1 && *serverId % 10 == 0;
    if (hasServerId)
        profile.ServerId(*serverId);

    const auto index = members.Int(Key::ProfileIndex);
    if (index)
        profile.Index(*index);

    return hasServerId || index ? Result() : Result("PelOperatorMetadataProfile is empty");
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
