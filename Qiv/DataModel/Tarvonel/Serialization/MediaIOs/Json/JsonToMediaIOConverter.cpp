#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaIOConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelReading.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/References.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMetadataProfileDictionaryConverter.h>

#include <string>
#include <string_view>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace Common::Serialization::Json;
using BusinessEntityModel::BaseTypes::Identifier;
using BusinessEntityModel::BaseTypes::Utf8String;
using Details::ChannelKey;
using Details::ChannelMembers;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;

JsonToMediaIOConverter::~JsonToMediaIOConverter() = default;

Result JsonToMediaIOConverter::To(const JsonObject& json, MediaIO& channel) const
{
    const ChannelMembers members(json);
    if (members.IsEmpty())
        return "MediaIO is empty";
    const auto type = members.Text(ChannelKey::Type);
    if (!type)
        return "Invalid JSON type (undefined)";

    if (*type == "MediaInput")
    {
        if (channel.GetMode() != MediaIO::Mode::Input)
            return "Inconsistent types - cannot merge JSON-MediaInput source with MediaOutput destination.";
        if (auto result = Details::AppendCommon(members, channel); !result)
            return result;
        return Details::AppendInput(members, static_cast<MediaInput&>(channel));
    }
    if (*type == "MediaOutput")
    {
        if (channel.GetMode() != MediaIO::Mode::Output)
            return "Inconsistent types - cannot merge JSON-MediaOutput source with MediaInput destination.";
        if (auto result = Details::AppendCommon(members, channel); !result)
            return result;
        return Details::AppendOutput(members, static_cast<MediaOutput&>(channel));
    }
    return std::string("Invalid JSON type ('").append(*type).append("') : 'MediaInput' or 'MediaOutput' expected");
}

Result JsonToMediaIOConverter::Append(const JsonObject& json, MediaIO& channel) const
{
    return Details::AppendCommon(ChannelMembers(json), channel);
}

Result Details::AppendCommon(const ChannelMembers& members, MediaIO& channel)
{
    if (const auto id = members.Text(ChannelKey::Id))
        channel.Id(Identifier(*id));

    if (const auto name = members.Text(ChannelKey::Name))
        channel.Name(Utf8String(*name));

    if (const auto* mediaAssetOnAir = members.Object(ChannelKey::MediaAssetOnAir))
    {
        MediaAssetReference reference;
        if (auto result = MediaAssetReferenceReader().To(*mediaAssetOnAir, reference); !result)
            return result;
        channel.MediaAssetOnAir(std::move(reference));
    }

    if (const auto* metadata = members.Object(ChannelKey::Metadata))
    {
        // Dropped on purpose: metadata never fail a channel, and what could be read of them stays.
        static_cast<void>(JsonToMetadataProfileDictionaryConverter().To(*metadata, channel.Metadata()));
    }

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
