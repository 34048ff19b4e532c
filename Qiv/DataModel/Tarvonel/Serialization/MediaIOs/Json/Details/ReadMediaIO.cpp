#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadMediaAsset.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadReference.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/MediaAssetReferenceForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using BusinessEntityModel::BaseTypes::Identifier;
using BusinessEntityModel::BaseTypes::SharedReference;
using BusinessEntityModel::BaseTypes::Utf8String;
using MediaAssets::MediaAsset;
using MediaAssets::Serialization::Json::Details::ReadMediaAsset;
using MediaAssets::Serialization::Json::Details::ReadReference;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;
using Form = ChannelForm;

Result ReadMediaIO(ValueView json, MediaIO& channel)
{
    return ReadMediaIO(ChannelMembers(json), channel);
}

Result ReadMediaIO(const ChannelMembers& members, MediaIO& channel)
{
    if (members.IsEmpty())
        return Form::emptyMessage;
    const auto type = members.Get<Form::type>();
    if (!type)
        return Form::undefinedTypeMessage;

    if (*type == Form::recorderTag)
    {
        if (channel.GetMode() != MediaIO::Mode::Input)
            return Form::InconsistentTypes(Form::recorderTag, Form::playerTag);
        if (auto result = ApplyCommonMembers(members, channel); !result)
            return result;
        return ApplyRecorderMembers(members, static_cast<MediaInput&>(channel));
    }
    if (*type == Form::playerTag)
    {
        if (channel.GetMode() != MediaIO::Mode::Output)
            return Form::InconsistentTypes(Form::playerTag, Form::recorderTag);
        if (auto result = ApplyCommonMembers(members, channel); !result)
            return result;
        return ApplyPlayerMembers(members, static_cast<MediaOutput&>(channel));
    }
    return Form::UnknownType(*type);
}

Result AppendCommonMembers(ValueView json, MediaIO& channel)
{
    return ApplyCommonMembers(ChannelMembers(json), channel);
}

Result ApplyCommonMembers(const ChannelMembers& members, MediaIO& channel)
{
    if (const auto id = members.Get<Form::id>(); id && *id != channel.Id().Value())
        channel.Id(Identifier(*id));

    if (const auto name = members.Get<Form::name>())
        channel.Name(Utf8String(*name));

    if (const auto mediaAssetOnAir = members.Get<Form::mediaAssetOnAir>())
    {
        SharedReference<MediaAsset> reference;
        if (auto result = ReadReference<MediaAssetReferenceForm>(mediaAssetOnAir, ReadMediaAsset, reference); !result)
            return result;
        channel.MediaAssetOnAir(std::move(reference));
    }

    if (const auto metadata = members.Get<Form::metadata>())
    {
        // Dropped on purpose: metadata never fail a channel, and what could be read of them stays.
        static_cast<void>(ReadMetadata(metadata, channel.Metadata()));
    }

    return {};
}

std::string ChannelForm::InconsistentTypes(std::string_view source, std::string_view target)
{
    return std::string("Inconsistent types - cannot merge JSON-")
        .append(source)
        .append(" source with ")
        .append(target)
        .append(" destination.");
}

std::string ChannelForm::UnknownType(std::string_view type)
{
    return std::string("Invalid JSON type ('").append(type).append("') : 'MediaInput' or 'MediaOutput' expected");
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
