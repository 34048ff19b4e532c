#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaOutputConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::MediaOutput;

JsonToMediaOutputConverter::~JsonToMediaOutputConverter() = default;

Result JsonToMediaOutputConverter::To(const JsonObject& json, MediaOutput& channel) const noexcept
{
    return Details::ReadMediaOutput(json, channel);
}

Result JsonToMediaOutputConverter::Append(const JsonObject& json, MediaOutput& channel) const noexcept
{
    return Details::AppendPlayerMembers(json, channel);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
