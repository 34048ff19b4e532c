#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Writes a player channel, in the form that `JsonToMediaOutputConverter` reads: "_type", the common members (see
/// `MediaIOToJsonConverter`), "playingStatus" always, the others unless they are empty. For time codes without date see
/// `MediaInputToJsonConverter`.
///
/// A failure of the common members is returned, with the object closed behind what was written. The results of the
/// other nested writers are not looked at.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT MediaOutputToJsonConverter
    : public ToJsonConverter<Tarvonel::MediaIOs::MediaOutput>
{
public:
    /// Writes time points with a `TimePointToJsonObjectConverter` of its own.
    MediaOutputToJsonConverter();
    /// Writes the time points of "sequence" and "inBoundary" with `timepointConverter`, which must not throw
    /// (an empty pointer stands for the default writer); those of "outBoundary" and "currentTimePointOnAir" are always
    /// written in the default form.
    ///
    /// The time point writer of the first converter with which the process writes a player channel is kept until the
    /// process ends, so its destructor never runs.
    explicit MediaOutputToJsonConverter(SharedTimePointWriter timepointConverter);
    MediaOutputToJsonConverter(const MediaOutputToJsonConverter&) = default;
    MediaOutputToJsonConverter& operator=(const MediaOutputToJsonConverter&) = default;
    ~MediaOutputToJsonConverter() override;

    using ToJsonConverter::To;
    Result To(const Tarvonel::MediaIOs::MediaOutput& channel, Stringer& stringer) const noexcept override;

    /// Writes "_type", the common and the player members into an object that is already open.
    Result AppendMediaOutput(Stringer& stringer, const Tarvonel::MediaIOs::MediaOutput& channel) const noexcept;

private:
    SharedTimePointWriter timepointConverter_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
