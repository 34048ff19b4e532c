#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSpeedConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::Speed;

JsonToSpeedConverter::~JsonToSpeedConverter() = default;

Result JsonToSpeedConverter::To(const JsonObject& json, Speed& speed) const noexcept
{
    return Details::ReadSpeed(json, speed);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
