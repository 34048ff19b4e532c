#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Writes a recorder channel, in the form that `JsonToMediaInputConverter` reads: "_type", the common members (see
/// `MediaIOToJsonConverter`), "recordingStatus" always, the others unless they are empty. A reader that merges
/// therefore keeps its old value of what became empty here.
///
/// A time code without date is written with the placeholder date -1-0-1-0-1, for example "-1-0-1-0-1T10:00:00:00@25",
/// which no reader of this library takes back.
///
/// A failure of the common members is returned, with the object closed behind what was written. The result of the time
/// point writer is not looked at.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT MediaInputToJsonConverter
    : public ToJsonConverter<Tarvonel::MediaIOs::MediaInput>
{
public:
    /// Writes time points with a `TimePointToJsonObjectConverter` of its own.
    MediaInputToJsonConverter();
    /// Writes time points with `timepointConverter`, which must not throw; an empty pointer stands for the default one.
    explicit MediaInputToJsonConverter(SharedTimePointWriter timepointConverter);
    MediaInputToJsonConverter(const MediaInputToJsonConverter&) = default;
    MediaInputToJsonConverter& operator=(const MediaInputToJsonConverter&) = default;
    ~MediaInputToJsonConverter() override;

    using ToJsonConverter::To;
    Result To(const Tarvonel::MediaIOs::MediaInput& channel, Stringer& stringer) const noexcept override;

    /// Writes "_type", the common and the recorder members into an object that is already open.
    Result AppendMediaInput(Stringer& stringer, const Tarvonel::MediaIOs::MediaInput& channel) const noexcept;

private:
    SharedTimePointWriter timepointConverter_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
