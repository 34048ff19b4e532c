#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToTimePointConverter.h>
#include <Qiv/DataModel/MediaAssets/TimecodePrimary.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryOrigin.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingLoopMode.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingStatus.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/RecordingStatus.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Inspection.h>
#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>
#include <system_error>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

using namespace Common::Serialization::Json;
using namespace Details;
using MediaAssets::TimecodePrimary;
using MediaAssets::Serialization::Json::JsonToTimePointConverter;
using Tarvonel::MediaIOs::BoundaryOrigin;
using Tarvonel::MediaIOs::PlayingLoopMode;
using Tarvonel::MediaIOs::PlayingStatus;
using Tarvonel::MediaIOs::RecordingStatus;
using TimePoints::Duration;
using TimePoints::QivDurationParser;
using TimePoints::QivTimeCodeParser;
using TimePoints::TimeCode;
using TimePoints::TimePoint;

namespace
{

// What the readers ask of values beyond their type. Where a reader has a function for it, that function is asked here.

void ReportInvalid(Inspection& inspection, const JsonObject& value, std::string_view why)
{
    inspection.Report(FindingKind::InvalidValue, value, Quote(TextOf(value)).append(" ").append(why));
}

void ReportFatal(Inspection& inspection, const JsonObject& value, std::string_view why, const char* exceptionText)
{
    inspection.Report(FindingKind::EndsProcess, value,
                      Quote(TextOf(value)).append(" ").append(why).append(", which ends the process"), exceptionText);
}

template <typename Enumeration, std::int32_t first = 0>
void Enumerator(Inspection& inspection, const JsonObject& value)
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

void OriginOfRelative(Inspection& inspection, const JsonObject& value)
{
    if (TextOf(value) == ToString(BoundaryOrigin::Absolute))
        ReportFatal(inspection, value, "is the origin of a relative boundary", "Bad origin for BoundaryRelative");
    else
        Enumerator<BoundaryOrigin, 1>(inspection, value); // not advising Absolute, which comes first
}

void TimeCodeText(Inspection& inspection, const JsonObject& value)
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

void DurationText(Inspection& inspection, const JsonObject& value)
{
    Duration duration;
    if (!QivDurationParser::TryRead(TextOf(value), duration))
        ReportInvalid(inspection, value, "is no decimal number; the object around it is skipped");
    else if (!FitsSixtyFourBits(TextOf(value)))
        ReportInvalid(inspection, value,
                      "does not fit 64 bits; it is read as " + std::to_string(duration.Nanoseconds()) + " ns");
}

void TimePointText(Inspection& inspection, const JsonObject& value)
{
    JsonObject timePoint(::Json::objectValue);
    timePoint["value"] = value;
    TimePoint read;
    if (const auto result = JsonToTimePointConverter().To(timePoint, read); !result)
        inspection.ReportFailure(value, Quote(TextOf(value)).append(" is no whole decimal number of 64 bits"),
                                 result.ErrorMessage());
}

// As lenient and as harsh as `std::stoll`, which the reader uses.
void TimePointOnAirText(Inspection& inspection, const JsonObject& value)
{
    if (!value.isString())
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

void ServerIdentifier(Inspection& inspection, const JsonObject& value)
{
    if (value.asInt() < 1 || value.asInt() % 10 != 0)
        inspection.Report(FindingKind::InvalidValue, value,
                          "is no server identifier, a positive multiple of 10; it is skipped");
}

void Addresses(Inspection& inspection, const JsonObject& value)
{
    for (::Json::ArrayIndex i = 0; i < value.size(); ++i)
    {
        if (value[i].isString())
            continue;
        const Inspection::Step step(inspection, std::to_string(i));
        inspection.Report(FindingKind::WrongType, value[i], "is no string; the element is skipped");
    }
}

void Reserved(Inspection& inspection, const JsonObject& value)
{
    inspection.Report(FindingKind::Ignored, value, "is reserved, and nothing is read from it");
}

template <const Shape& shape>
void Nested(Inspection& inspection, const JsonObject& value)
{
    inspection.Inspect(value, shape);
}

// A reference to an entity, which may be embedded.
struct Reference
{
    std::string_view tag;
    std::string_view embedded;
    const Shape& target;
};

template <const Reference& reference>
void Refers(Inspection& inspection, const JsonObject& value);
void Metadata(Inspection& inspection, const JsonObject& value);
void Boundary(Inspection& inspection, const JsonObject& value);

// The JSON forms. Members stand in the order in which the readers take them: the first that fails ends the reading.

constexpr Member timePointMembers[] = {
    {"value", Type::Nanoseconds, TimePointText, "Invalid TimePoint value"},
};
constexpr Shape timePoint{"TimePoint", nullptr, "TimePoint is empty", timePointMembers};

constexpr Member timePointOnAirMembers[] = {
    {"value", Type::Nanoseconds, TimePointOnAirText, objectIsSkipped},
};
constexpr Shape timePointOnAir{"TimePoint", objectIsSkipped, nullptr, timePointOnAirMembers};

constexpr Member durationMembers[] = {
    {"value", Type::Text, DurationText, objectIsSkipped},
};
constexpr Shape duration{"Duration", objectIsSkipped, nullptr, durationMembers};

constexpr Member speedMembers[] = {
    {"numerator", Type::Integer},
    {"denominator", Type::Integer},
};
constexpr Shape speed{"Speed", nullptr, "Speed is empty", speedMembers};

constexpr Member boundaryAbsoluteMembers[] = {
    {"timepoint", Type::Any, Nested<timePoint>},
};
constexpr Shape boundaryAbsolute{"BoundaryAbsolute", "Invalid _type", "Boundary is empty", boundaryAbsoluteMembers};

constexpr Member boundaryRelativeMembers[] = {
    {"origin", Type::Text, OriginOfRelative},
    {"offset", Type::Integer},
};
constexpr Shape boundaryRelative{"BoundaryRelative", "Invalid _type", "Boundary is empty", boundaryRelativeMembers};

constexpr Member mediaAssetMembers[] = {
    {"id", Type::Text},
    {"name", Type::Text},
    {"inPoint", Type::Object, Nested<timePoint>},
    {"outPoint", Type::Object, Nested<timePoint>},
};
constexpr Shape mediaAsset{"MediaAsset", nullptr, "MediaAsset is empty", mediaAssetMembers};
constexpr Reference mediaAssetReference{"MediaAssetRef", "mediaAsset", mediaAsset};

constexpr Member sequenceMembers[] = {
    {"id", Type::Text},
    {"name", Type::Text},
};
constexpr Shape sequence{"Sequence", nullptr, "Sequence is empty", sequenceMembers};
constexpr Reference sequenceReference{"SequenceRef", "sequence", sequence};

constexpr Member assetBlockMembers[] = {
    {"id", Type::Text},
    {"mediaAsset", Type::Object, Refers<mediaAssetReference>},
};
constexpr Shape assetBlock{"AssetBlockOnAir", nullptr, nullptr, assetBlockMembers};

constexpr Member sequenceOutputMembers[] = {
    {"sequenceOnAir", Type::Object, Refers<sequenceReference>},
    {"assetBlockOnAir", Type::Object, Nested<assetBlock>},
    {"nextAssetBlockOnAir", Type::Object, Nested<assetBlock>},
    {"editMode", Type::Boolean},
};
constexpr Shape sequenceOutput{"SequenceOutput", nullptr, "SequenceOutput is empty", sequenceOutputMembers};

constexpr Member operatorMembers[] = {
    {"qiv.peloperator.serverId", Type::Integer, ServerIdentifier},
    {"qiv.peloperator.index", Type::Integer},
};

constexpr Member channelMembers[] = {
    {"id", Type::Text},
    {"name", Type::Text},
    {"mediaAssetOnAir", Type::Object, Refers<mediaAssetReference>},
    {"metadata", Type::Object, Metadata},
};
constexpr Members channel(channelMembers);

constexpr Member mediaInputMembers[] = {
    {"recordingStatus", Type::Text, Enumerator<RecordingStatus>},
    {"lastTimePoint", Type::Any, Nested<timePoint>},
    {"lastTodTimecode", Type::Text, TimeCodeText},
    {"lastUserTimecode", Type::Text, TimeCodeText},
    {"primaryTimecodeType", Type::Text, Enumerator<TimecodePrimary>},
    {"remainingCapacity", Type::Object, Nested<duration>},
    {"totalCapacity", Type::Object, Nested<duration>},
};
constexpr Shape mediaInput{"MediaInput", nullptr, "MediaIO is empty", {mediaInputMembers, &channel}};

constexpr Member mediaOutputMembers[] = {
    {"playingStatus", Type::Text, Enumerator<PlayingStatus>},
    {"speedOnAir", Type::Object, Nested<speed>},
    {"globalLoopMode", Type::Text, Enumerator<PlayingLoopMode>},
    {"remainingTime", Type::Object, Nested<duration>},
    {"sequence", Type::Object, Nested<sequenceOutput>},
    {"currentTimePointOnAir", Type::Object, Nested<timePointOnAir>},
    {"todTimecodeOnAir", Type::Text, TimeCodeText},
    {"userTimecodeOnAir", Type::Text, TimeCodeText},
    {"primaryTimecodeType", Type::Text, Enumerator<TimecodePrimary>},
    {"inBoundary", Type::Object, Boundary},
    {"outBoundary", Type::Object, Boundary},
    {"locationOnAir", Type::Any, Reserved},
};
constexpr Shape mediaOutput{"MediaOutput", nullptr, "MediaIO is empty", {mediaOutputMembers, &channel}};

constexpr Member nodeMembers[] = {
    {"id", Type::Text, nullptr, "Node has no identifier (required)"},
    {"serialNumber", Type::Integer},
    {"hostName", Type::Text},
    {"ipAddress", Type::Text},
    {"gbeIpAddresses", Type::Array, Addresses},
    {"chassis", Type::Text},
    {"hardwareRevision", Type::Text},
    {"tarvonelVersion", Type::Text},
};
constexpr Shape node{"Node", nullptr, "Node is null", nodeMembers};

// The three forms that depend on more than one member at a time.

void Boundary(Inspection& inspection, const JsonObject& value)
{
    const auto isRelative = IfText(FindMember(value, "_type")) == boundaryRelative.tag;
    inspection.Inspect(value, isRelative ? boundaryRelative : boundaryAbsolute);
}

template <const Reference& reference>
void Refers(Inspection& inspection, const JsonObject& value)
{
    static constexpr Member members[] = {
        {"id", Type::Any},
        {reference.embedded, Type::Object, Nested<reference.target>},
    };

    const auto* const tag = FindMember(value, "_type");
    const auto* const id = FindMember(value, "id");
    const auto* const embedded = FindMember(value, reference.embedded);
    if (tag != nullptr && tag->isString() && TextOf(*tag) != reference.tag)
    {
        const Inspection::Step step(inspection, "_type");
        inspection.ReportFailure(*tag, Quote(TextOf(*tag)).append(" is not ").append(Quote(reference.tag)),
                                 "Bad _type");
        return;
    }
    if (tag == nullptr || !tag->isString())
        inspection.InspectMember(value, {"_type", Type::Text});

    // The number of members tells the forms apart, those counted that no reader knows.
    const auto isById = id != nullptr && (value.size() == 1 || (value.size() == 2 && tag != nullptr));
    const auto isEmbedded = !isById && embedded != nullptr && embedded->isObject();
    if (isById && (id->isArray() || id->isObject()))
        inspection.ReportFailure(value, "has no text as \"id\"", "Bad format");
    else if (!isById && !isEmbedded)
        inspection.ReportFailure(value,
                                 "has neither \"id\" with nothing but \"_type\" beside it nor an object as " +
                                     Quote(reference.embedded),
                                 "Bad format");
    else if (isById && !id->isString())
    {
        const Inspection::Step step(inspection, "id");
        inspection.Report(FindingKind::InvalidValue, *id, "is no string; its text is read, " + Quote(id->asString()));
    }

    if (isEmbedded)
    {
        inspection.InspectMembers(value, members);
        const auto* const embeddedId = FindMember(*embedded, "id");
        if (id != nullptr && IfText(id) != IfText(embeddedId).value_or(std::string_view()))
        {
            const Inspection::Step step(inspection, "id");
            inspection.Report(FindingKind::Ignored, *id,
                              "is ignored: the identifier is that of the object in " + Quote(reference.embedded));
        }
    }
    inspection.ReportUnknown(value, members, reference.tag);
}

void Metadata(Inspection& inspection, const JsonObject& value)
{
    constexpr std::string_view reserved = "qiv.peloperator";

    inspection.InspectMembers(value, operatorMembers);
    for (auto member = value.begin(); member != value.end(); ++member)
    {
        const auto name = NameOf(member);
        if (std::any_of(std::begin(operatorMembers), std::end(operatorMembers),
                        [name](const Member& known) { return known.key == name; }))
            continue;
        const Inspection::Step step(inspection, name);
        const auto lastDot = name.rfind('.');
        if (lastDot == std::string_view::npos)
            inspection.Report(FindingKind::UnknownMember, *member,
                              Quote(name).append(" has no dot and so belongs to no profile; it is skipped"));
        else if (lastDot >= reserved.size() && name.substr(0, reserved.size()) == reserved)
            inspection.Report(FindingKind::UnknownMember, *member,
                              Quote(name).append(" is in the namespace of the operator profile; it is skipped"));
        else if (!member->isString())
            inspection.Report(FindingKind::WrongType, *member,
                              "is no string, as all metadata but the operator's are; it is skipped");
    }
}

void ReportChannelTag(Inspection& inspection, const JsonObject& value, const Shape& shape, const Shape& otherKind)
{
    const auto* const tag = FindMember(value, "_type");
    const auto text = IfText(tag);
    if (tag == nullptr)
        return inspection.ReportFailure(value, "has no \"_type\"", "Invalid JSON type (undefined)");
    const Inspection::Step step(inspection, "_type");
    if (!text)
        return inspection.ReportFailure(*tag, "is no string", "Invalid JSON type (undefined)");
    if (*text == otherKind.tag)
        inspection.ReportFailure(*tag, Quote(*text).append(" is not ").append(Quote(shape.tag)),
                                 std::string("Inconsistent types - cannot merge JSON-")
                                     .append(otherKind.tag)
                                     .append(" source with ")
                                     .append(shape.tag)
                                     .append(" destination."));
    else
        inspection.ReportFailure(
            *tag, Quote(*text).append(KindOf(value) ? " is no kind of channel" : " names no kind of document"),
            std::string("Invalid JSON type ('").append(*text).append("') : 'MediaInput' or 'MediaOutput' expected"));
}

// A channel, or a document of no known kind, as JsonToMediaIOConverter reads it into a channel of that kind.
void Channel(Inspection& inspection, const JsonObject& value, const Shape& shape, const Shape& otherKind)
{
    if (IsEmptyObject(value) || IfText(FindMember(value, "_type")) == shape.tag)
        return inspection.Inspect(value, shape);
    ReportChannelTag(inspection, value, shape, otherKind);
    // The reader of players takes a document without "_type" too, and only its members can end the process.
    inspection.InspectForFatal(value, mediaOutput.members);
}

const Finding* FirstOf(const std::vector<Finding>& findings, FindingKind kind) noexcept
{
    const auto found =
        std::find_if(findings.begin(), findings.end(), [kind](const Finding& finding) { return finding.kind == kind; });
    return found != findings.end() ? &*found : nullptr;
}

} // namespace

std::vector<Finding> InspectDocument(const JsonObject& document)
{
    return InspectDocument(document, KindOf(document).value_or(DocumentKind::MediaInput));
}

std::vector<Finding> InspectDocument(const JsonObject& document, DocumentKind kind)
{
    Inspection inspection;
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

const Finding* FirstFailure(const std::vector<Finding>& findings) noexcept
{
    return FirstOf(findings, FindingKind::Failure);
}

const Finding* FirstFatal(const std::vector<Finding>& findings) noexcept
{
    return FirstOf(findings, FindingKind::EndsProcess);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
