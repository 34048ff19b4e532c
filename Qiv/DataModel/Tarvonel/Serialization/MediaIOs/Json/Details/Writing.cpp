#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/SequenceToJsonConverter.h>
#include <Qiv/Common/Serialization/Json/Details/DurationForm.h>
#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/SharedReferenceToJson.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/MediaAssetReferenceForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceReferenceForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MetadataProfileDictionaryToJsonConverter.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>

#include <memory>
#include <string>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using namespace MediaAssets::Serialization::Json;
using BusinessEntityModel::BaseTypes::SharedReference;
using BusinessEntityModel::Edits::Sequence;
using BusinessEntityModel::Edits::Serialization::Json::SequenceToJsonConverter;
using Common::Serialization::Json::QuotedKey;
using Common::Serialization::Json::Details::DurationForm;
using Common::Serialization::Json::Details::keyOf;
using MediaAssets::MediaAsset;
using Tarvonel::MediaIOs::MediaIO;
using TimePoints::Duration;
using TimePoints::QivTimeCodeFormatter;
using TimePoints::TimeCode;

SharedTimePointWriter OrDefault(SharedTimePointWriter timepointConverter)
{
    if (timepointConverter == nullptr)
        timepointConverter = std::make_shared<TimePointToJsonObjectConverter>();
    return timepointConverter;
}

Result AppendCommonMembers(Stringer& stringer, const MediaIO& channel)
{
    using Form = ChannelForm;

    if (!channel.Id().IsEmpty())
        stringer.Member(keyOf<Form::id>, channel.Id().Value().c_str());

    if (!channel.Name().empty())
        stringer.Member(keyOf<Form::name>, channel.Name().c_str());

    if (!channel.MediaAssetOnAir().Id().IsEmpty())
    {
        // Without a time point writer on purpose: the asset's time points keep their own form.
        stringer.Key(keyOf<Form::mediaAssetOnAir>);
        if (auto result = AppendReference(stringer, channel.MediaAssetOnAir(), nullptr); !result)
            return result;
    }

    if (!channel.Metadata().Empty())
    {
        stringer.Key(keyOf<Form::metadata>);
        if (auto result = MetadataProfileDictionaryToJsonConverter().To(channel.Metadata(), stringer); !result)
            return result;
    }

    return {};
}

void AppendUnlessEmpty(Stringer& stringer, const QuotedKey& key, const TimeCode& timeCode)
{
    if (timeCode == TimeCode::Empty())
        return;
    char text[QivTimeCodeFormatter::MaximumLength];
    stringer.Member(key, QivTimeCodeFormatter::FormatTo(timeCode, text));
}

void AppendUnlessEmpty(Stringer& stringer, const QuotedKey& key, const Duration& duration)
{
    if (duration == Duration::Empty())
        return;
    stringer.Key(key);
    AppendNanosecondsObject(stringer, DurationForm::tag, duration.Nanoseconds());
}

namespace
{

template <typename Form, typename Entity, typename EntityWriter>
auto WriterOf(std::shared_ptr<EntityWriter> writer)
{
    return SharedReferenceToJson<Entity, false>(std::string(Form::tag), std::string(keyOf<Form::embedded>),
                                                std::move(writer));
}

} // namespace

// The writers that everybody shares are never destroyed, so that references can still be written while the process
// ends.

Result AppendReference(Stringer& stringer, const SharedReference<MediaAsset>& reference,
                       const SharedTimePointWriter& timepointConverter)
{
    using Form = MediaAssetReferenceForm;
    using Writer = SharedReferenceToJson<MediaAsset, false>;

    static const auto& defaultWriter =
        *new Writer(WriterOf<Form, MediaAsset>(std::make_shared<MediaAssetToJsonConverter>()));

    // A reference by identifier holds no time points.
    if (timepointConverter == nullptr || reference.Pointer() == nullptr)
        return defaultWriter.To(reference, stringer);
    return WriterOf<Form, MediaAsset>(std::make_shared<MediaAssetToJsonConverter>(timepointConverter))
        .To(reference, stringer);
}

Result AppendReference(Stringer& stringer, const SharedReference<Sequence>& reference)
{
    using Writer = SharedReferenceToJson<Sequence, false>;

    static const auto& writer =
        *new Writer(WriterOf<SequenceReferenceForm, Sequence>(std::make_shared<SequenceToJsonConverter>()));
    return writer.To(reference, stringer);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
