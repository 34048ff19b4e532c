#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/WriteUpdate.h>

#include <Qiv/Common/Serialization/Json/Details/DurationForm.h>
#include <Qiv/Common/Serialization/Json/Details/TimePointForm.h>
#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/SameContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/Details/MetadataUpdate.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/Details/Update.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/AssetBlockForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceOutputForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SequenceOutputToJsonConverter.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates
{

using BusinessEntityModel::BaseTypes::Optional;
using BusinessEntityModel::BaseTypes::SharedReference;
using Common::Serialization::Json::AppendNanosecondsObject;
using Common::Serialization::Json::QuotedKey;
using Common::Serialization::Json::Stringer;
using Common::Serialization::Json::Details::DurationForm;
using Common::Serialization::Json::Details::keyOf;
using Common::Serialization::Json::Details::TimePointForm;
using Details::ObstacleOfText;
using Json::Details::AreSame;
using Json::Details::IsEnumerator;
using MediaAssets::MediaAsset;
using MediaAssets::Serialization::Json::TimePointToJsonObjectConverter;
using MediaIOs::Json::SequenceOutputToJsonConverter;
using MediaIOs::Json::Details::AppendReference;
using MediaIOs::Json::Details::AssetBlockForm;
using MediaIOs::Json::Details::ChannelForm;
using MediaIOs::Json::Details::SequenceOutputForm;
using MediaIOs::Json::Details::WriteBoundary;
using MediaIOs::Json::Details::WriteSpeed;
using Tarvonel::MediaIOs::Boundary;
using Tarvonel::MediaIOs::BoundaryAbsolute;
using Tarvonel::MediaIOs::BoundaryOrigin;
using Tarvonel::MediaIOs::BoundaryRelative;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;
using Tarvonel::MediaIOs::SequenceOutput;
using Tarvonel::MediaIOs::Speed;
using TimePoints::Duration;
using TimePoints::QivTimeCodeFormatter;
using TimePoints::QivTimeCodeParser;
using TimePoints::TimeCode;
using TimePoints::TimePoint;

namespace
{

// The text that readers take for the time code: for one without date, that of its clock time.
std::string_view TextOf(const TimeCode& timeCode, char* buffer)
{
    const auto text = QivTimeCodeFormatter::FormatTo(timeCode, buffer);
    return timeCode.HasDate() ? text : text.substr(text.find('T') + 1);
}

// Why a value does not come back as it is when it has been written; null when it does.

const char* ObstacleOf(const std::string& text)
{
    return ObstacleOfText(text);
}

template <typename Enumeration, std::enable_if_t<std::is_enum_v<Enumeration>, int> = 0>
const char* ObstacleOf(Enumeration value)
{
    return IsEnumerator(value) ? nullptr : "the value is no enumerator, and its text is read as the default";
}

const char* ObstacleOf(const TimeCode& timeCode)
{
    char buffer[QivTimeCodeFormatter::MaximumLength];
    TimeCode read;
    return QivTimeCodeParser::TryRead(TextOf(timeCode, buffer), read) && read == timeCode
               ? nullptr
               : "the time code has no text that is read back as it is";
}

const char* ObstacleOf(const std::unique_ptr<Boundary>& boundary)
{
    if (boundary->IsEmpty() || dynamic_cast<const BoundaryAbsolute*>(boundary.get()) != nullptr)
        return nullptr;
    const auto* const relative = dynamic_cast<const BoundaryRelative*>(boundary.get());
    if (relative == nullptr)
        return "the boundary is neither an absolute nor a relative one";
    return relative->Origin() != BoundaryOrigin::Absolute && IsEnumerator(relative->Origin())
               ? nullptr
               : "the boundary is relative without one of the relative origins";
}

template <typename Entity>
const char* ObstacleOf(const SharedReference<Entity>& reference)
{
    const auto& object = reference.Pointer();
    if (object == nullptr)
        return ObstacleOfText(reference.Id().Value());
    if (object->Id() != reference.Id())
        return "the identifier is not that of the object, which readers take";
    const auto* const obstacle = ObstacleOfText(object->Id().Value());
    return obstacle != nullptr ? obstacle : ObstacleOfText(object->Name());
}

constexpr const char* ObstacleOf(const Speed&)
{
    return nullptr;
}
constexpr const char* ObstacleOf(const Duration&)
{
    return nullptr;
}
constexpr const char* ObstacleOf(const TimePoint&)
{
    return nullptr;
}

// Values as readers take them, empty ones too.

void Write(const std::string& text, Stringer& stringer)
{
    stringer.Value(text);
}

template <typename Enumeration, std::enable_if_t<std::is_enum_v<Enumeration>, int> = 0>
void Write(Enumeration value, Stringer& stringer)
{
    stringer.Value(ToString(value));
}

void Write(const TimeCode& timeCode, Stringer& stringer)
{
    char buffer[QivTimeCodeFormatter::MaximumLength];
    stringer.Value(TextOf(timeCode, buffer));
}

void Write(const TimePoint& timePoint, Stringer& stringer)
{
    AppendNanosecondsObject(stringer, TimePointForm::tag, timePoint.Nanoseconds());
}

void Write(const Duration& duration, Stringer& stringer)
{
    AppendNanosecondsObject(stringer, DurationForm::tag, duration.Nanoseconds());
}

void Write(const Speed& speed, Stringer& stringer)
{
    static_cast<void>(WriteSpeed(stringer, speed)); // never fails
}

void Write(const std::unique_ptr<Boundary>& boundary, Stringer& stringer)
{
    // Of a kind without obstacle; an empty one of any kind is written as the empty one that readers know.
    const TimePointToJsonObjectConverter timePoints;
    static_cast<void>(boundary->IsEmpty() ? WriteBoundary(stringer, BoundaryAbsolute(), timePoints)
                                          : WriteBoundary(stringer, *boundary, timePoints));
}

void Write(const SharedReference<MediaAsset>& reference, Stringer& stringer)
{
    // Without identifier it counts as empty, whatever it refers to.
    static_cast<void>(
        AppendReference(stringer, reference.Id().IsEmpty() ? SharedReference<MediaAsset>() : reference, nullptr));
}

class ChannelUpdate
{
public:
    explicit ChannelUpdate(Details::Update& update) : update_(update) {}

    void WriteCommon(const MediaIO& before, const MediaIO& after)
    {
        Member<std::string>(keyOf<ChannelForm::name>, before.Name(), after.Name());
        Member(keyOf<ChannelForm::mediaAssetOnAir>, before.MediaAssetOnAir(), after.MediaAssetOnAir());
        Details::WriteMetadata(before.Metadata(), after.Metadata(), update_);
    }

    void WriteInput(const MediaInput& before, const MediaInput& after)
    {
        Member(keyOf<ChannelForm::recordingStatus>, before.RecordingStatus(), after.RecordingStatus());
        Member(keyOf<ChannelForm::lastTimePoint>, before.LastTimePoint(), after.LastTimePoint());
        Member(keyOf<ChannelForm::lastTodTimecode>, before.LastTodTimecode(), after.LastTodTimecode());
        Member(keyOf<ChannelForm::lastUserTimecode>, before.LastUserTimecode(), after.LastUserTimecode());
        Member(keyOf<ChannelForm::primaryTimecodeType>, before.PrimaryTimecodeType(), after.PrimaryTimecodeType());
        Capacities(before, after);
    }

    void WriteOutput(const MediaOutput& before, const MediaOutput& after)
    {
        Member(keyOf<ChannelForm::playingStatus>, before.PlayingStatus(), after.PlayingStatus());
        Member(keyOf<ChannelForm::speedOnAir>, before.SpeedOnAir(), after.SpeedOnAir());
        Member(keyOf<ChannelForm::globalLoopMode>, before.GlobalLoopMode(), after.GlobalLoopMode());
        Member(keyOf<ChannelForm::remainingTime>, before.RemainingTime(), after.RemainingTime());
        Member(keyOf<ChannelForm::currentTimePointOnAir>, before.CurrentTimePointOnAir(),
               after.CurrentTimePointOnAir());
        Member(keyOf<ChannelForm::todTimecodeOnAir>, before.TodTimecodeOnAir(), after.TodTimecodeOnAir());
        Member(keyOf<ChannelForm::userTimecodeOnAir>, before.UserTimecodeOnAir(), after.UserTimecodeOnAir());
        Member(keyOf<ChannelForm::primaryTimecodeType>, before.PrimaryTimecodeType(), after.PrimaryTimecodeType());
        Sequence(before.Sequence(), after.Sequence());
        Member(keyOf<ChannelForm::inBoundary>, before.InBoundary(), after.InBoundary());
        Member(keyOf<ChannelForm::outBoundary>, before.OutBoundary(), after.OutBoundary());
    }

private:
    template <typename Value>
    void Member(const QuotedKey& key, const Value& before, const Value& after)
    {
        if (AreSame(before, after))
            return;
        update_.hasChanges = true;
        if (const auto* const obstacle = ObstacleOf(after))
            return update_.Omit({key}, obstacle);
        update_.stringer.Key(key);
        Write(after, update_.stringer);
    }

    // Readers set the remaining capacity first, which raises a smaller total, and then the total, which lowers a
    // greater remaining capacity: either may bring about what the other should become.
    void Capacities(const MediaInput& before, const MediaInput& after)
    {
        const auto& remaining = after.RemainingCapacity();
        const auto& total = after.TotalCapacity();
        if (before.RemainingCapacity() == remaining && before.TotalCapacity() == total)
            return;
        update_.hasChanges = true;
        if (std::min(before.RemainingCapacity(), total) != remaining)
        {
            update_.stringer.Key(keyOf<ChannelForm::remainingCapacity>);
            Write(remaining, update_.stringer);
            if (std::max(before.TotalCapacity(), remaining) == total)
                return;
        }
        update_.stringer.Key(keyOf<ChannelForm::totalCapacity>);
        Write(total, update_.stringer);
    }

    void Sequence(const Optional<SequenceOutput>& before, const Optional<SequenceOutput>& after)
    {
        if (AreSame(before, after))
            return;
        update_.hasChanges = true;
        if (!after.HasValue())
            return update_.Omit({keyOf<ChannelForm::sequence>}, "the sequence is gone, and merging never removes one");
        if (HasObstacles(*after))
            return;
        update_.stringer.Key(keyOf<ChannelForm::sequence>);
        static_cast<void>(SequenceOutputToJsonConverter().To(*after, update_.stringer)); // fails with no such writer
    }

    // Whether something in a sequence does not come back; notes all that does not.
    bool HasObstacles(const SequenceOutput& sequence)
    {
        const auto countBefore = update_.omissions.size();
        const auto check = [this](std::string_view member, std::string_view part, const char* obstacle)
        {
            if (obstacle != nullptr && part.empty())
                update_.Omit({keyOf<ChannelForm::sequence>, member}, obstacle);
            else if (obstacle != nullptr)
                update_.Omit({keyOf<ChannelForm::sequence>, member, part}, obstacle);
        };
        const auto checkBlock = [&check](std::string_view member, const SequenceOutput::AssetBlockOutput& block)
        {
            check(member, keyOf<AssetBlockForm::id>, ObstacleOfText(block.Id().Value()));
            check(member, keyOf<AssetBlockForm::mediaAsset>, ObstacleOf(block.MediaAssetRef()));
        };
        if (!sequence.SequenceOnAir().Id().IsEmpty()) // otherwise it counts as empty, whatever it refers to
            check(keyOf<SequenceOutputForm::sequenceOnAir>, {}, ObstacleOf(sequence.SequenceOnAir()));
        checkBlock(keyOf<SequenceOutputForm::assetBlockOnAir>, sequence.AssetBlockOnAir());
        if (sequence.NextAssetBlockOnAir().HasValue())
            checkBlock(keyOf<SequenceOutputForm::nextAssetBlockOnAir>, *sequence.NextAssetBlockOnAir());
        return update_.omissions.size() != countBefore;
    }

    Details::Update& update_;
};

} // namespace

UpdateResult WriteUpdate(const MediaIO& before, const MediaIO& after, Stringer& stringer)
{
    if (before.GetMode() != after.GetMode())
        return UpdateResult("the channels are of different kinds");
    if (before.Id() != after.Id())
        return UpdateResult("the channels have different identifiers");

    Details::Update update{stringer};
    const bool isInput = after.GetMode() == MediaIO::Mode::Input;
    {
        const auto scope = stringer.ObjectScope();
        stringer.Key(keyOf<ChannelForm::type>).Value(isInput ? ChannelForm::recorderTag : ChannelForm::playerTag);
        if (!after.Id().IsEmpty() && ObstacleOfText(after.Id().Value()) == nullptr)
            stringer.Key(keyOf<ChannelForm::id>).Value(after.Id().Value());
        ChannelUpdate channel(update);
        channel.WriteCommon(before, after);
        if (isInput)
            channel.WriteInput(static_cast<const MediaInput&>(before), static_cast<const MediaInput&>(after));
        else
            channel.WriteOutput(static_cast<const MediaOutput&>(before), static_cast<const MediaOutput&>(after));
    }
    return {update.hasChanges, std::move(update.omissions)};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates
