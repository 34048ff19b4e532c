#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/InspectValue.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/Details/SequenceForm.h>
#include <Qiv/Common/Serialization/Json/Details/DurationForm.h>
#include <Qiv/Common/Serialization/Json/Details/TimePointForm.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/MediaAssetForm.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadTimePoint.h>
#include <Qiv/DataModel/MediaAssets/TimecodePrimary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryOrigin.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingLoopMode.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingStatus.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/RecordingStatus.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Inspection.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Quote.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/AssetBlockForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/BoundaryForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/MediaAssetReferenceForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/OperatorProfileForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceOutputForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceReferenceForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SpeedForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/Details/NodeForm.h>
#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>
#include <system_error>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using namespace Serialization::MediaIOs::Json::Details;
using BusinessEntityModel::Edits::Serialization::Json::Details::SequenceForm;
using Common::Serialization::Json::Details::DurationForm;
using Common::Serialization::Json::Details::keyOf;
using Common::Serialization::Json::Details::TimePointForm;
using MediaAssets::TimecodePrimary;
using MediaAssets::Serialization::Json::Details::MediaAssetForm;
using MediaAssets::Serialization::Json::Details::NanosecondsOf;
using Nodes::Json::Details::NodeForm;
using Tarvonel::MediaIOs::BoundaryOrigin;
using Tarvonel::MediaIOs::PlayingLoopMode;
using Tarvonel::MediaIOs::PlayingStatus;
using Tarvonel::MediaIOs::RecordingStatus;
using TimePoints::Duration;
using TimePoints::QivDurationParser;
using TimePoints::QivTimeCodeParser;
using TimePoints::TimeCode;

namespace
{

// What the readers ask of values beyond their type. Where a reader has a function for it, that function is asked here.

std::string_view TextOf(ValueView text) noexcept
{
    return text.Text().value_or(std::string_view());
}

void ReportInvalid(Inspection& inspection, ValueView value, std::string_view why)
{
    inspection.Report(FindingKind::InvalidValue, value, Quote(TextOf(value)).append(" ").append(why));
}

// A text that is kept as it is.
void FreeText(Inspection& inspection, ValueView value)
{
    if (TextOf(value).find('\0') != std::string_view::npos)
        ReportInvalid(inspection, value, "holds a NUL, and writers write only what stands before it");
}

void ReportFatal(Inspection& inspection, ValueView value, std::string_view why, const char* exceptionText)
{
    inspection.Report(FindingKind::EndsProcess, value,
                      Quote(TextOf(value)).append(" ").append(why).append(", which ends the process"), exceptionText);
}

template <typename Enumeration, std::int32_t first = 0>
void Enumerator(Inspection& inspection, ValueView value)
{
    const auto textsOfAll = []
    {
        std::string texts;
        Enumeration enumerator{};
        for (auto i = first; FromText(ToString(Enumeration{i}), enumerator) && enumerator == Enumeration{i}; ++i)
            texts.append(i == first ? "" : ", ").append(ToString(enumerator));
        return texts;
    };
    Enumeration enumerator{};
    if (!FromText(TextOf(value), enumerator))
        ReportInvalid(inspection, value, "is none of " + textsOfAll() + "; it is read as " + ToString(enumerator));
}

void OriginOfRelative(Inspection& inspection, ValueView value)
{
    if (TextOf(value) == ToString(BoundaryOrigin::Absolute))
        ReportFatal(inspection, value, "is the origin of a relative boundary", BoundaryForm::badOriginMessage);
    else
        Enumerator<BoundaryOrigin, 1>(inspection, value); // not advising Absolute, which comes first
}

void TimeCodeText(Inspection& inspection, ValueView value)
{
    TimeCode timeCode;
    if (QivTimeCodeParser::TryRead(TextOf(value), timeCode))
        return;
    ReportInvalid(inspection, value,
                  TextOf(value).substr(0, 3) == "-1-" ? "is how time codes without date are written; it is skipped"
                                                      : "is no time code; it is skipped");
}

// Whether the text is a whole decimal number of 64 bits, with or without a sign.
bool FitsSixtyFourBits(std::string_view digits)
{
    if (!digits.empty() && digits.front() == '+')
        digits.remove_prefix(1);
    std::int64_t number = 0;
    return std::from_chars(digits.data(), digits.data() + digits.size(), number).ec == std::errc();
}

void DurationText(Inspection& inspection, ValueView value)
{
    Duration duration;
    if (!QivDurationParser::TryRead(TextOf(value), duration))
        ReportInvalid(inspection, value, "is no decimal number; the object around it is skipped");
    else if (!FitsSixtyFourBits(TextOf(value)))
        ReportInvalid(inspection, value,
                      "does not fit 64 bits; it is read as " + std::to_string(duration.Nanoseconds()) + " ns");
}

void TimePointText(Inspection& inspection, ValueView value)
{
    if (!NanosecondsOf(value))
        inspection.ReportFailure(value, Quote(TextOf(value)).append(" is no whole decimal number of 64 bits"),
                                 TimePointForm::invalidValueMessage);
}

// As lenient and as harsh as `std::stoll`, which the reader uses.
void TimePointOnAirText(Inspection& inspection, ValueView value)
{
    if (!value.IsText())
        return;
    const std::string text(TextOf(value));
    try
    {
        std::size_t length = 0;
        const auto number = std::stoll(text, &length);
        if (length != text.size())
            ReportInvalid(inspection, value, "is read as " + std::to_string(number) + " without what follows it");
    }
    catch (const std::invalid_argument& exception)
    {
        ReportFatal(inspection, value, "does not begin with a number", exception.what());
    }
    catch (const std::out_of_range& exception)
    {
        ReportFatal(inspection, value, "does not fit 64 bits", exception.what());
    }
}

void ServerIdentifier(Inspection& inspection, ValueView value)
{
    if (!OperatorProfileForm::IsServerId(value.Int32().value_or(0)))
        inspection.Report(FindingKind::InvalidValue, value,
                          "is no server identifier, a positive multiple of 10; it is skipped");
}

void OperatorIndex(Inspection& inspection, ValueView value)
{
    if (value.Int32().value_or(0) < 0)
        inspection.Report(FindingKind::InvalidValue, value, "is negative, and writers leave it out");
}

void Addresses(Inspection& inspection, ValueView value)
{
    value.VisitElements(
        [&](ValueView element, const auto& indexOf)
        {
            const auto key = std::to_string(indexOf());
            const Inspection::Step step(inspection, key);
            if (element.IsText())
                FreeText(inspection, element);
            else
                inspection.Report(FindingKind::WrongType, element, "is no string; the element is skipped");
        });
}

void Reserved(Inspection& inspection, ValueView value)
{
    inspection.Report(FindingKind::Ignored, value, "is reserved, and nothing is read from it");
}

template <const ObjectShape& shape>
void Nested(Inspection& inspection, ValueView value)
{
    inspection.Inspect(value, shape);
}

template <typename Form, const ObjectShape& target>
void Refers(Inspection& inspection, ValueView value);
template <typename Form, const ObjectShape& target>
void RefersOnAir(Inspection& inspection, ValueView value);
void SpeedOnAir(Inspection& inspection, ValueView value);
void TotalCapacity(Inspection& inspection, ValueView value);
void Metadata(Inspection& inspection, ValueView value);
void Boundary(Inspection& inspection, ValueView value);

// The rules of each object. Members stand in the order in which the readers take them: the first that fails ends the
// reading.

constexpr auto timePointRules =
    RulesFor(TimePointForm::members,
             {RuleOf(TimePointForm::value, TimePointText, FailsWith(TimePointForm::invalidValueMessage))});
constexpr ObjectShape timePoint{TimePointForm::tag, {}, TimePointForm::emptyMessage, timePointRules};

constexpr auto timePointOnAirRules =
    RulesFor(TimePointForm::members, {RuleOf(TimePointForm::value, TimePointOnAirText, objectIsSkipped)});
constexpr ObjectShape timePointOnAir{TimePointForm::tag, objectIsSkipped, nullptr, timePointOnAirRules};

constexpr auto durationRules =
    RulesFor(DurationForm::members, {RuleOf(DurationForm::value, DurationText, objectIsSkipped)});
constexpr ObjectShape duration{DurationForm::tag, objectIsSkipped, nullptr, durationRules};

constexpr auto speedRules = RulesFor(SpeedForm::members, {
                                                             RuleOf(SpeedForm::numerator),
                                                             RuleOf(SpeedForm::denominator),
                                                         });
constexpr ObjectShape speed{SpeedForm::tag, {}, SpeedForm::emptyMessage, speedRules};

constexpr auto absoluteRules = RulesFor(BoundaryForm::absolute, {RuleOf(BoundaryForm::timepoint, Nested<timePoint>)});
constexpr ObjectShape boundaryAbsolute{BoundaryForm::absoluteTag, FailsWith(BoundaryForm::invalidTypeMessage),
                                       BoundaryForm::emptyMessage, absoluteRules};

constexpr auto relativeRules = RulesFor(BoundaryForm::relative, {
                                                                    RuleOf(BoundaryForm::origin, OriginOfRelative),
                                                                    RuleOf(BoundaryForm::offset),
                                                                });
constexpr ObjectShape boundaryRelative{BoundaryForm::relativeTag, FailsWith(BoundaryForm::invalidTypeMessage),
                                       BoundaryForm::emptyMessage, relativeRules};

constexpr auto mediaAssetRules =
    RulesFor(MediaAssetForm::members, {
                                          RuleOf(MediaAssetForm::id, FreeText),
                                          RuleOf(MediaAssetForm::name, FreeText),
                                          RuleOf(MediaAssetForm::inPoint, Nested<timePoint>),
                                          RuleOf(MediaAssetForm::outPoint, Nested<timePoint>),
                                      });
constexpr ObjectShape mediaAsset{MediaAssetForm::tag, {}, MediaAssetForm::emptyMessage, mediaAssetRules};

constexpr auto sequenceRules = RulesFor(SequenceForm::members, {
                                                                   RuleOf(SequenceForm::id, FreeText),
                                                                   RuleOf(SequenceForm::name, FreeText),
                                                               });
constexpr ObjectShape sequence{SequenceForm::tag, {}, SequenceForm::emptyMessage, sequenceRules};

constexpr auto assetBlockRules = RulesFor(
    AssetBlockForm::members, {
                                 RuleOf(AssetBlockForm::id, FreeText),
                                 RuleOf(AssetBlockForm::mediaAsset, Refers<MediaAssetReferenceForm, mediaAsset>),
                             });
constexpr ObjectShape assetBlock{AssetBlockForm::tag, {}, nullptr, assetBlockRules};

constexpr auto sequenceOutputRules =
    RulesFor(SequenceOutputForm::members,
             {
                 RuleOf(SequenceOutputForm::sequenceOnAir, RefersOnAir<SequenceReferenceForm, sequence>),
                 RuleOf(SequenceOutputForm::assetBlockOnAir, Nested<assetBlock>),
                 RuleOf(SequenceOutputForm::nextAssetBlockOnAir, Nested<assetBlock>),
                 RuleOf(SequenceOutputForm::editMode),
             });
constexpr ObjectShape sequenceOutput{
    SequenceOutputForm::tag, {}, SequenceOutputForm::emptyMessage, sequenceOutputRules};

constexpr auto operatorRules =
    RulesFor(OperatorProfileForm::members, {
                                               RuleOf(OperatorProfileForm::serverId, ServerIdentifier),
                                               RuleOf(OperatorProfileForm::index, OperatorIndex),
                                           });

constexpr auto commonRules = RulesFor(
    ChannelForm::common, {
                             RuleOf(ChannelForm::id, FreeText),
                             RuleOf(ChannelForm::name, FreeText),
                             RuleOf(ChannelForm::mediaAssetOnAir, RefersOnAir<MediaAssetReferenceForm, mediaAsset>),
                             RuleOf(ChannelForm::metadata, Metadata),
                         });
constexpr ObjectRules common(commonRules);

constexpr auto recorderRules = RulesFor(ChannelForm::Joined(ChannelForm::ofEitherKind, ChannelForm::recorder),
                                        {
                                            RuleOf(ChannelForm::recordingStatus, Enumerator<RecordingStatus>),
                                            RuleOf(ChannelForm::lastTimePoint, Nested<timePoint>),
                                            RuleOf(ChannelForm::lastTodTimecode, TimeCodeText),
                                            RuleOf(ChannelForm::lastUserTimecode, TimeCodeText),
                                            RuleOf(ChannelForm::primaryTimecodeType, Enumerator<TimecodePrimary>),
                                            RuleOf(ChannelForm::remainingCapacity, Nested<duration>),
                                            RuleOf(ChannelForm::totalCapacity, TotalCapacity),
                                        });
constexpr ObjectShape mediaInput{ChannelForm::recorderTag, {}, ChannelForm::emptyMessage, {recorderRules, &common}};

constexpr auto playerRules = RulesFor(ChannelForm::Joined(ChannelForm::ofEitherKind, ChannelForm::player),
                                      {
                                          RuleOf(ChannelForm::playingStatus, Enumerator<PlayingStatus>),
                                          RuleOf(ChannelForm::speedOnAir, SpeedOnAir),
                                          RuleOf(ChannelForm::globalLoopMode, Enumerator<PlayingLoopMode>),
                                          RuleOf(ChannelForm::remainingTime, Nested<duration>),
                                          RuleOf(ChannelForm::sequence, Nested<sequenceOutput>),
                                          RuleOf(ChannelForm::currentTimePointOnAir, Nested<timePointOnAir>),
                                          RuleOf(ChannelForm::todTimecodeOnAir, TimeCodeText),
                                          RuleOf(ChannelForm::userTimecodeOnAir, TimeCodeText),
                                          RuleOf(ChannelForm::primaryTimecodeType, Enumerator<TimecodePrimary>),
                                          RuleOf(ChannelForm::inBoundary, Boundary),
                                          RuleOf(ChannelForm::outBoundary, Boundary),
                                          RuleOf(ChannelForm::locationOnAir, Reserved),
                                      });
constexpr ObjectShape mediaOutput{ChannelForm::playerTag, {}, ChannelForm::emptyMessage, {playerRules, &common}};

constexpr auto nodeRules =
    RulesFor(NodeForm::members, {
                                    RuleOf(NodeForm::id, FreeText, FailsWith(NodeForm::withoutIdMessage)),
                                    RuleOf(NodeForm::serialNumber),
                                    RuleOf(NodeForm::hostName, FreeText),
                                    RuleOf(NodeForm::ipAddress, FreeText),
                                    RuleOf(NodeForm::gbeIpAddresses, Addresses),
                                    RuleOf(NodeForm::chassis, FreeText),
                                    RuleOf(NodeForm::hardwareRevision, FreeText),
                                    RuleOf(NodeForm::tarvonelVersion, FreeText),
                                });
constexpr ObjectShape node{NodeForm::tag, {}, NodeForm::emptyMessage, nodeRules};

// The objects that depend on more than one member at a time.

void Boundary(Inspection& inspection, ValueView value)
{
    const auto isRelative = value.Find(keyOf<BoundaryForm::type>).Text() == boundaryRelative.tag;
    inspection.Inspect(value, isRelative ? boundaryRelative : boundaryAbsolute);
}

template <typename Form, const ObjectShape& target>
void Refers(Inspection& inspection, ValueView value)
{
    static constexpr auto rules = RulesFor(Form::members, {
                                                              RuleOf(Form::id),
                                                              RuleOf(Form::embedded, Nested<target>),
                                                          });

    const auto tag = value.Find(keyOf<Form::type>);
    const auto id = value.Find(keyOf<Form::id>);
    const auto embedded = value.Find(keyOf<Form::embedded>);
    if (tag.Text().value_or(Form::tag) != Form::tag)
    {
        const Inspection::Step step(inspection, keyOf<Form::type>);
        inspection.ReportFailure(tag, Quote(TextOf(tag)).append(" is not ").append(Quote(Form::tag)),
                                 Form::badTypeMessage);
        return;
    }
    if (!tag.IsText())
        inspection.InspectMember(value, RuleOf(Form::type));

    // The number of members tells the forms apart, those counted that no reader knows.
    const auto isById = !id.IsNull() && (value.Size() == 1 || (value.Size() == 2 && !tag.IsNull()));
    const auto isEmbedded = !isById && embedded.IsObject();
    if (isById && (id.IsArray() || id.IsObject()))
        inspection.ReportFailure(value, "has no text as " + Quote(keyOf<Form::id>), Form::badFormatMessage);
    else if (!isById && !isEmbedded)
        inspection.ReportFailure(value,
                                 "has neither " + Quote(keyOf<Form::id>) + " with nothing but " +
                                     Quote(keyOf<Form::type>) + " beside it nor an object as " +
                                     Quote(keyOf<Form::embedded>),
                                 Form::badFormatMessage);
    else if (isById && !id.IsText())
    {
        const Inspection::Step step(inspection, keyOf<Form::id>);
        inspection.Report(FindingKind::InvalidValue, id, "is no string; its text is read, " + Quote(id.ScalarText()));
    }
    else if (isById)
    {
        const Inspection::Step step(inspection, keyOf<Form::id>);
        FreeText(inspection, id);
    }

    if (isEmbedded)
    {
        inspection.InspectMembers(value, rules);
        const auto embeddedId = embedded.Find(keyOf<Form::id>);
        if (!id.IsNull() && id.Text() != TextOf(embeddedId))
        {
            const Inspection::Step step(inspection, keyOf<Form::id>);
            inspection.Report(FindingKind::Ignored, id,
                              "is ignored: the identifier is that of the object in " + Quote(keyOf<Form::embedded>));
        }
    }
    inspection.ReportUnknown(value, rules, Form::tag);
}

template <typename Form, const ObjectShape& target>
void RefersOnAir(Inspection& inspection, ValueView value)
{
    Refers<Form, target>(inspection, value);
    const auto embedded = value.Find(keyOf<Form::embedded>);
    if (!embedded.IsEmptyObject() && TextOf(embedded.Find(keyOf<Form::id>)).empty())
        inspection.Report(FindingKind::InvalidValue, value,
                          "refers to an object without identifier, and writers leave it out");
}

void SpeedOnAir(Inspection& inspection, ValueView value)
{
    Nested<speed>(inspection, value);
    if (value.Find(keyOf<SpeedForm::numerator>).Int32().value_or(0) != 0 &&
        value.Find(keyOf<SpeedForm::denominator>).Int32().value_or(0) == 0)
        inspection.Report(FindingKind::InvalidValue, value,
                          "is undefined without a denominator, and writers leave it out");
}

void TotalCapacity(Inspection& inspection, ValueView value)
{
    const auto remainingCapacity = inspection.Object().Find(keyOf<ChannelForm::remainingCapacity>);
    const auto remaining = remainingCapacity.IsObject() ? DurationOf(remainingCapacity) : std::nullopt;
    Nested<duration>(inspection, value);
    const auto total = DurationOf(value);
    if (!total)
        return;
    const Inspection::Step step(inspection, keyOf<DurationForm::value>);
    const auto text = value.Find(keyOf<DurationForm::value>);
    if (*total < Duration::Empty())
        ReportInvalid(inspection, text, "is negative; it is read as 0");
    else if (remaining && *remaining > *total)
        ReportInvalid(inspection, text,
                      "is less than " + Quote(keyOf<ChannelForm::remainingCapacity>) + ", which is lowered to it");
}

void Metadata(Inspection& inspection, ValueView value)
{
    inspection.InspectMembers(value, operatorRules);
    value.VisitMembers(
        [&](std::string_view name, ValueView member)
        {
            if (std::any_of(operatorRules.begin(), operatorRules.end(),
                            [name](const MemberRule& rule) { return rule.key == name; }))
                return;
            const Inspection::Step step(inspection, name);
            const auto lastDot = name.rfind('.');
            if (lastDot == std::string_view::npos)
                inspection.Report(FindingKind::UnknownMember, member,
                                  Quote(name).append(" has no dot and so belongs to no profile; it is skipped"));
            else if (OperatorProfileForm::Reserves(name.substr(0, lastDot)))
                inspection.Report(FindingKind::UnknownMember, member,
                                  Quote(name).append(" is in the namespace of the operator profile; it is skipped"));
            else if (!member.IsText())
                inspection.Report(FindingKind::WrongType, member,
                                  "is no string, as all metadata but the operator's are; it is skipped");
            else if (name.find('\0') != std::string_view::npos)
                inspection.Report(FindingKind::InvalidValue, member,
                                  Quote(name).append(" holds a NUL, and writers write only what stands before it"));
            else
                FreeText(inspection, member);
        });
}

void ReportChannelTag(Inspection& inspection, ValueView value, bool namesKind, const ObjectShape& shape,
                      const ObjectShape& otherKind)
{
    const auto tag = value.Find(keyOf<ChannelForm::type>);
    if (tag.IsNull())
        return inspection.ReportFailure(value, "has no " + Quote(keyOf<ChannelForm::type>),
                                        ChannelForm::undefinedTypeMessage);
    const Inspection::Step step(inspection, keyOf<ChannelForm::type>);
    const auto text = tag.Text();
    if (!text)
        inspection.ReportFailure(tag, "is no string", ChannelForm::undefinedTypeMessage);
    else if (*text == otherKind.tag)
        inspection.ReportFailure(tag, Quote(*text).append(" is not ").append(Quote(shape.tag)),
                                 ChannelForm::InconsistentTypes(otherKind.tag, shape.tag));
    else
        inspection.ReportFailure(
            tag, Quote(*text).append(namesKind ? " is no kind of channel" : " names no kind of document"),
            ChannelForm::UnknownType(*text));
}

// A channel, or a document of no known kind, as JsonToMediaIOConverter reads it into a channel of that kind.
void Channel(Inspection& inspection, ValueView value, const ObjectShape& shape, const ObjectShape& otherKind)
{
    if (value.IsEmptyObject() || value.Find(keyOf<ChannelForm::type>).Text() == shape.tag)
        return inspection.Inspect(value, shape);
    ReportChannelTag(inspection, value, KindOfValue(value).has_value(), shape, otherKind);
    // The reader of players takes a document without "_type" too, and only its members can end the process.
    inspection.InspectForFatal(value, mediaOutput.rules);
}

} // namespace

std::vector<Finding> InspectValue(ValueView document, DocumentKind kind, std::size_t maximum)
{
    Inspection inspection(maximum);
    switch (kind)
    {
    case DocumentKind::MediaInput:
        Channel(inspection, document, mediaInput, mediaOutput);
        break;
    case DocumentKind::MediaOutput:
        Channel(inspection, document, mediaOutput, mediaInput);
        break;
    case DocumentKind::Node:
        inspection.Inspect(document, node);
        break;
    case DocumentKind::SequenceOutput:
        inspection.Inspect(document, sequenceOutput);
        break;
    case DocumentKind::Speed:
        inspection.Inspect(document, speed);
        break;
    case DocumentKind::Boundary:
        Boundary(inspection, document);
        break;
    }
    return inspection.TakeFindings();
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
