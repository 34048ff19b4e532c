#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/PelOperatorMetadataProfileToJsonConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/OperatorProfileForm.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Common::Serialization::Json::Details::keyOf;
using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

PelOperatorMetadataProfileToJsonConverter::~PelOperatorMetadataProfileToJsonConverter() = default;

Result PelOperatorMetadataProfileToJsonConverter::To(const PelOperatorMetadataProfile& profile,
                                                     Stringer& stringer) const
{
    using Form = Details::OperatorProfileForm;

    if (profile.ServerId() != PelOperatorMetadataProfile::EmptyServerSerialNumber())
        stringer.Key(keyOf<Form::serverId>).Value(profile.ServerId());
    if (profile.Index() >= 0)
        stringer.Key(keyOf<Form::index>).Value(profile.Index());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
