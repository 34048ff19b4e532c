#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>

#include <cstdint>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// The members that the operator profile has among the metadata of a channel. They have no "_type".
struct OperatorProfileForm : JsonForm<OperatorProfileForm>
{
    static constexpr std::string_view profileName = Tarvonel::MediaIOs::PelOperatorMetadataProfile::Name();
    static constexpr const char* emptyMessage = "PelOperatorMetadataProfile is empty";

    static constexpr Member serverId{"qiv.peloperator.serverId", JsonType::Integer};
    static constexpr Member index{"qiv.peloperator.index", JsonType::Integer};

    static constexpr auto members = ListOf(serverId, index);

    /// Whether a namespace of metadata is the profile's. Not only its own: everything that begins with its name is.
    static constexpr bool Reserves(std::string_view profileNamespace)
    {
        return profileNamespace.substr(0, profileName.size()) == profileName;
    }

    /// Whether a number is a server's serial number, which the reader asks of "serverId".
    static constexpr bool IsServerId(std::int32_t number) { return number >= 1 && number % 10 == 0; }
};

static_assert(OperatorProfileForm::Reserves(OperatorProfileForm::serverId.key) &&
                  OperatorProfileForm::Reserves(OperatorProfileForm::index.key),
              "the keys begin with the name of the profile");

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
