#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SpeedToJsonConverter.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::Speed;

SpeedToJsonConverter::~SpeedToJsonConverter() = default;

Result SpeedToJsonConverter::To(const Speed& speed, Stringer& stringer) const noexcept
{
    stringer.Object();
    auto result = AppendSpeed(stringer, speed);
    stringer.CloseObject();
    return result;
}

Result SpeedToJsonConverter::AppendSpeed(Stringer& stringer, const Speed& speed) const noexcept
{
    stringer.Member("_type", "Speed");
    stringer.Key("numerator").Value(speed.Numerator());
    // Not widened on purpose: a denominator of 2^31 or more goes out negative, and the reader takes it back.
    stringer.Key("denominator").Value(static_cast<std::int32_t>(speed.Denominator()));
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
