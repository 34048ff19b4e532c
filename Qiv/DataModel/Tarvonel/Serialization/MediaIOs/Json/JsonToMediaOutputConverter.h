#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Reads a player channel: the common members (see `JsonToMediaIOConverter`), then its own, each into the property of
/// the same name, in the order of the table in docs/json.md but for "sequence". These have a rule of their own:
///
///     "playingStatus":"Playing"                unknown text gives Idle
///     "speedOnAir":{speed}                     read into 0/0, not into the current speed
///     "globalLoopMode":"Loop"                  unknown text gives Unknown
///     "sequence":{sequence output}             replaces the sequence state; read before "currentTimePointOnAir"
///     "currentTimePointOnAir":{time point}     skipped without "_type"; its "value" may be a number of 64 bits
///     "primaryTimecodeType":"User"             unknown text gives NotSet
///     "inBoundary", "outBoundary":{boundary}   replaces the boundary
///     "locationOnAir"                          reserved; any value is accepted and ignored
///
/// What is absent, null, of another type, or has a text that no time code or duration has, is skipped without a
/// message. Of the text in "currentTimePointOnAir" white space and a sign before the number are accepted, and what
/// follows the number is ignored.
///
/// Failures: "MediaOutput is empty" and "Invalid type X : MediaOutput expected" leave the channel untouched; those of
/// nested readers are returned unchanged, with the members before them applied.
///
/// **Ends the process** (`std::terminate`) when the "value" text of "currentTimePointOnAir" does not begin with a
/// number of 64 bits, and when the "origin" of a relative boundary is "Absolute". Both are kept for the callers that
/// rely on them; check a document from outside before you read it. Declared not to throw: running out of memory inside
/// ends the process too, and `std::bad_cast` as for `JsonToMediaInputConverter`.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT JsonToMediaOutputConverter
    : public FromJsonConverter<Tarvonel::MediaIOs::MediaOutput>
{
public:
    ~JsonToMediaOutputConverter() override;

    using FromJsonConverter::To;
    Result To(const JsonObject& json, Tarvonel::MediaIOs::MediaOutput& channel) const noexcept override;

    /// Applies the player members only.
    Result Append(const JsonObject& json, Tarvonel::MediaIOs::MediaOutput& channel) const noexcept;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
