#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaInputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaOutputToJsonConverter.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;

MediaIOToJsonConverter::MediaIOToJsonConverter() : MediaIOToJsonConverter(nullptr) {}

MediaIOToJsonConverter::MediaIOToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(Details::OrDefault(std::move(timepointConverter)))
{
}

MediaIOToJsonConverter::~MediaIOToJsonConverter() = default;

Result MediaIOToJsonConverter::To(const MediaIO& channel, Stringer& stringer) const
{
    const auto object = stringer.ObjectScope();
    switch (channel.GetMode())
    {
    case MediaIO::Mode::Input:
        return MediaInputToJsonConverter(timepointConverter_)
            .AppendMediaInput(stringer, static_cast<const MediaInput&>(channel));
    case MediaIO::Mode::Output:
        return MediaOutputToJsonConverter(timepointConverter_)
            .AppendMediaOutput(stringer, static_cast<const MediaOutput&>(channel));
    }
    return "Unsupported MediaIO type - should be MediaInput or MediaOutput";
}

Result MediaIOToJsonConverter::AppendMediaIO(const MediaIO& channel, Stringer& stringer) const
{
    return Details::AppendCommonMembers(stringer, channel);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
