#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SpeedToJsonConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SpeedForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Common::Serialization::Json::Details::keyOf;
using Tarvonel::MediaIOs::Speed;

SpeedToJsonConverter::~SpeedToJsonConverter() = default;

Result SpeedToJsonConverter::To(const Speed& speed, Stringer& stringer) const noexcept
{
    return Details::WriteSpeed(stringer, speed);
}

Result SpeedToJsonConverter::AppendSpeed(Stringer& stringer, const Speed& speed) const noexcept
{
    return Details::AppendSpeed(stringer, speed);
}

Result Details::WriteSpeed(Stringer& stringer, const Speed& speed)
{
    const auto object = stringer.ObjectScope();
    return AppendSpeed(stringer, speed);
}

Result Details::AppendSpeed(Stringer& stringer, const Speed& speed)
{
    using Form = SpeedForm;

    stringer.Member(keyOf<Form::type>, Form::tag);
    stringer.Key(keyOf<Form::numerator>).Value(speed.Numerator());
    // Not widened on purpose: a denominator of 2^31 or more goes out negative, and the reader takes it back.
    stringer.Key(keyOf<Form::denominator>).Value(static_cast<std::int32_t>(speed.Denominator()));
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
