#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaIOConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/FatalValues.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::MediaIO;

JsonToMediaIOConverter::~JsonToMediaIOConverter() = default;

Result JsonToMediaIOConverter::To(const JsonObject& json, MediaIO& channel) const
{
    return Details::EndingTheProcess([&] { return Details::ReadMediaIO(json, channel); });
}

Result JsonToMediaIOConverter::Append(const JsonObject& json, MediaIO& channel) const
{
    return Details::AppendCommonMembers(json, channel);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
