#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SpeedForm.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::KnownMembers;
using Tarvonel::MediaIOs::Speed;

Result ReadSpeed(ValueView json, Speed& speed)
{
    using Form = SpeedForm;

    const KnownMembers<Form> members(json);
    if (auto result = members.CheckShape(); !result)
        return result;

    const auto numerator = members.Get<Form::numerator>();
    const auto denominator = members.Get<Form::denominator>();
    // The denominator is read as a signed number on purpose, as the writer writes it: -1 stands for 2^32 - 1.
    speed = Speed(numerator.value_or(speed.Numerator()),
                  denominator ? static_cast<std::uint32_t>(*denominator) : speed.Denominator());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
