#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Reads a channel of either kind into an existing channel of the same kind; "_type" ("MediaInput" or "MediaOutput") is
/// required here and says which. The members of both kinds:
///
///     "id":"rec-1", "name":"Camera A", "mediaAssetOnAir":{reference "MediaAssetRef"}, "metadata":{dictionary}
///
/// The rest stands at `JsonToMediaInputConverter` and `JsonToMediaOutputConverter`. Members are merged: what is absent,
/// null or of another type stays as it is.
///
/// Failures that leave the channel untouched: "MediaIO is empty", "Invalid JSON type (undefined)" (no text as "_type"),
/// "Invalid JSON type ('X') : 'MediaInput' or 'MediaOutput' expected", and "Inconsistent types - cannot merge
/// JSON-MediaInput source with MediaOutput destination." or the same with both names exchanged. Later failures are
/// those of the reference reader and of the kind's reader, unchanged; what was applied before them stays. A failing
/// "metadata" never fails the channel; what could be read of it stays.
///
/// Throws `std::bad_cast` when the channel's metadata hold a profile of the wrong kind for its name, which no document
/// can bring about. Otherwise see the kind's reader, also for the documents that end the process.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT JsonToMediaIOConverter
    : public FromJsonConverter<Tarvonel::MediaIOs::MediaIO>
{
public:
    ~JsonToMediaIOConverter() override;

    using FromJsonConverter::To;
    Result To(const JsonObject& json, Tarvonel::MediaIOs::MediaIO& channel) const override;

    /// Applies the members common to both kinds; an object without any of them succeeds.
    Result Append(const JsonObject& json, Tarvonel::MediaIOs::MediaIO& channel) const;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
