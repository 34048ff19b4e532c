#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>

#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelWriting.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/References.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaInputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MetadataProfileDictionaryToJsonConverter.h>

#include <memory>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using MediaAssets::Serialization::Json::TimePointToJsonObjectConverter;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;

MediaIOToJsonConverter::MediaIOToJsonConverter() : MediaIOToJsonConverter(nullptr) {}

MediaIOToJsonConverter::MediaIOToJsonConverter(SharedTimePointWriter timepointConverter)
    : timepointConverter_(timepointConverter ? std::move(timepointConverter)
                                             : std::make_shared<TimePointToJsonObjectConverter>())
{
}

MediaIOToJsonConverter::~MediaIOToJsonConverter() = default;

Result MediaIOToJsonConverter::To(const MediaIO& channel, Stringer& stringer) const
{
    const auto append = [&]() -> Result
    {
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
    };

    stringer.Object();
    auto result = append();
    stringer.CloseObject();
    return result;
}

Result MediaIOToJsonConverter::AppendMediaIO(const MediaIO& channel, Stringer& stringer) const
{
    return Details::AppendCommon(stringer, channel);
}

Result Details::AppendCommon(Stringer& stringer, const MediaIO& channel)
{
    if (!channel.Id().IsEmpty())
        stringer.Member("id", channel.Id().Value().c_str());

    if (!channel.Name().empty())
        stringer.Member("name", channel.Name().c_str());

    if (!channel.MediaAssetOnAir().Id().IsEmpty())
    {
        // Without a time point writer on purpose: the asset's time points keep their own form.
        stringer.Key("mediaAssetOnAir");
        if (auto result = AppendReference(stringer, channel.MediaAssetOnAir(), nullptr); !result)
            return result;
    }

    if (!channel.Metadata().Empty())
    {
        stringer.Key("metadata");
        if (auto result = MetadataProfileDictionaryToJsonConverter().To(channel.Metadata(), stringer); !result)
            return result;
    }

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
