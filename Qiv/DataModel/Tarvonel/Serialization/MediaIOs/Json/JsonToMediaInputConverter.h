#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Reads a recorder channel: the common members (see `JsonToMediaIOConverter`), then its own, each into the property of
/// the same name, in the order of the table in docs/json.md. These have a rule of their own:
///
///     "recordingStatus":"Recording"            unknown text gives Idle
///     "lastTimePoint":{time point}             a failure of its reader fails the channel
///     "primaryTimecodeType":"User"             unknown text gives NotSet
///     "remainingCapacity":{duration}           before "totalCapacity", through setters that keep the two consistent
///
/// What is absent, null, of another type, or has a text that no time code or duration has, is skipped without a
/// message. So a time code without date does not come back from what the writer makes of it: its placeholder date is
/// no valid one.
///
/// Failures: "MediaInput is empty" and "Invalid type X : MediaInput expected" leave the channel untouched; those of
/// nested readers are returned unchanged, with the members before them applied.
///
/// Declared not to throw: running out of memory inside ends the process, and so does `std::bad_cast` from metadata that
/// hold a profile of the wrong kind for its name. No document brings about the latter.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT JsonToMediaInputConverter
    : public FromJsonConverter<Tarvonel::MediaIOs::MediaInput>
{
public:
    ~JsonToMediaInputConverter() override;

    using FromJsonConverter::To;
    Result To(const JsonObject& json, Tarvonel::MediaIOs::MediaInput& channel) const noexcept override;

    /// Applies the recorder members only.
    Result Append(const JsonObject& json, Tarvonel::MediaIOs::MediaInput& channel) const noexcept;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
