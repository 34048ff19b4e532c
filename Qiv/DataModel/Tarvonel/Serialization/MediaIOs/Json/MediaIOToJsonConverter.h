#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Writes a channel of either kind: "_type", then "id", "name", "mediaAssetOnAir" and "metadata" unless they are empty,
/// then the members of its kind (see `MediaInputToJsonConverter` and `MediaOutputToJsonConverter`). A media asset
/// without identifier counts as empty, whatever else it holds.
///
/// Failures, after which the object is closed: "Unsupported MediaIO type - should be MediaInput or MediaOutput", or
/// that of a nested writer.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT MediaIOToJsonConverter
    : public ToJsonConverter<Tarvonel::MediaIOs::MediaIO>
{
public:
    /// Writes time points with a `TimePointToJsonObjectConverter` of its own.
    MediaIOToJsonConverter();
    /// Writes the kinds' time points with `timepointConverter`, which must not throw; an empty pointer stands for the
    /// default writer. The time points of an embedded "mediaAssetOnAir" are always written in the default form.
    explicit MediaIOToJsonConverter(SharedTimePointWriter timepointConverter);
    MediaIOToJsonConverter(const MediaIOToJsonConverter&) = default;
    MediaIOToJsonConverter& operator=(const MediaIOToJsonConverter&) = default;
    ~MediaIOToJsonConverter() override;

    using ToJsonConverter::To;
    Result To(const Tarvonel::MediaIOs::MediaIO& channel, Stringer& stringer) const override;

    /// Writes the members common to both kinds into an object that is already open.
    Result AppendMediaIO(const Tarvonel::MediaIOs::MediaIO& channel, Stringer& stringer) const;

private:
    SharedTimePointWriter timepointConverter_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
