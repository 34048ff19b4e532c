#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::MediaIO;

MediaIOToJsonConverter::MediaIOToJsonConverter() : MediaIOToJsonConverter(nullptr) {}

MediaIOToJsonConverter::MediaIOToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(Details::OrDefault(std::move(timepointConverter)))
{
}

MediaIOToJsonConverter::~MediaIOToJsonConverter() = default;

Result MediaIOToJsonConverter::To(const MediaIO& channel, Stringer& stringer) const
{
    return Details::WriteMediaIO(stringer, channel, timepointConverter_);
}

Result Details::WriteMediaIO(Stringer& stringer, const MediaIO& channel,
                             const SharedTimePointWriter& timepointConverter)
{
    const auto object = stringer.ObjectScope();
    switch (channel.GetMode())
    {
    case MediaIO::Mode::Input:
        return AppendMediaInput(stringer, static_cast<const Tarvonel::MediaIOs::MediaInput&>(channel),
                                *timepointConverter);
    case MediaIO::Mode::Output:
        return AppendMediaOutput(stringer, static_cast<const Tarvonel::MediaIOs::MediaOutput&>(channel),
                                 timepointConverter);
    }
    return "Unsupported MediaIO type - should be MediaInput or MediaOutput";
}

Result MediaIOToJsonConverter::AppendMediaIO(const MediaIO& channel, Stringer& stringer) const
{
    return Details::AppendCommonMembers(stringer, channel);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
