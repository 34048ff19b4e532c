#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// The speed of a player.
struct SpeedForm : JsonForm<SpeedForm>
{
    static constexpr std::string_view tag = "Speed";
    static constexpr const char* emptyMessage = "Speed is empty";

    static constexpr Member numerator{"numerator", JsonType::Integer};
    static constexpr Member denominator{"denominator", JsonType::Integer};

    static constexpr auto members = ListOf(type, numerator, denominator);
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
