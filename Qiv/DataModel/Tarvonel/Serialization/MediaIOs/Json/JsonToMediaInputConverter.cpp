#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaInputConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::MediaInput;

JsonToMediaInputConverter::~JsonToMediaInputConverter() = default;

Result JsonToMediaInputConverter::To(const JsonObject& json, MediaInput& channel) const noexcept
{
    return Details::ReadMediaInput(json, channel);
}

Result JsonToMediaInputConverter::Append(const JsonObject& json, MediaInput& channel) const noexcept
{
    return Details::AppendRecorderMembers(json, channel);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
