#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Writes a speed as `{"_type":"Speed","numerator":1,"denominator":2}`, an undefined one too. The denominator goes out
/// as a signed number of 32 bits, so one of 2^31 or more is written as a negative number. Always succeeds.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT SpeedToJsonConverter
    : public ToJsonConverter<Tarvonel::MediaIOs::Speed>
{
public:
    ~SpeedToJsonConverter() override;

    using ToJsonConverter::To;
    Result To(const Tarvonel::MediaIOs::Speed& speed, Stringer& stringer) const noexcept override;

    /// Writes the members into an object that is already open.
    Result AppendSpeed(Stringer& stringer, const Tarvonel::MediaIOs::Speed& speed) const noexcept;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
