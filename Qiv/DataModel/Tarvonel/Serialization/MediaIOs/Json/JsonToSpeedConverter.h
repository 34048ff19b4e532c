#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Reads a speed: `{"_type":"Speed","numerator":1,"denominator":2}`. Merges: a member that is absent or no integer of
/// 32 bits leaves its field as it is. A negative "denominator" is stored as its bit pattern (-1 gives 4294967295).
///
/// Failures, which leave the speed unchanged: "Speed is empty", "Invalid type X : Speed expected".
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT JsonToSpeedConverter
    : public FromJsonConverter<Tarvonel::MediaIOs::Speed>
{
public:
    ~JsonToSpeedConverter() override;

    using FromJsonConverter::To;
    Result To(const JsonObject& json, Tarvonel::MediaIOs::Speed& speed) const noexcept override;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
