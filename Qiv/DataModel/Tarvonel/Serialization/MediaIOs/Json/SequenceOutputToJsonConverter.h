#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Writes the sequence state of a player, in the form that `JsonToSequenceOutputConverter` reads: "_type",
/// "assetBlockOnAir" and "editMode" always, "sequenceOnAir" unless its identifier is empty, "nextAssetBlockOnAir" when
/// there is one. A block is written whole, with empty identifiers too.
///
/// A failure of a nested writer is returned unchanged; every object is closed, and what follows is not written.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT SequenceOutputToJsonConverter
    : public ToJsonConverter<Tarvonel::MediaIOs::SequenceOutput>
{
public:
    /// Writes the time points of embedded media assets with a `TimePointToJsonObjectConverter` of its own.
    SequenceOutputToJsonConverter();
    /// Writes the time points of embedded media assets with `timepointConverter`; an empty pointer stands for the
    /// default writer.
    explicit SequenceOutputToJsonConverter(SharedTimePointWriter timepointConverter);
    SequenceOutputToJsonConverter(const SequenceOutputToJsonConverter&) = default;
    SequenceOutputToJsonConverter& operator=(const SequenceOutputToJsonConverter&) = default;
    ~SequenceOutputToJsonConverter() override;

    using ToJsonConverter::To;
    Result To(const Tarvonel::MediaIOs::SequenceOutput& sequenceOutput, Stringer& stringer) const override;

    /// Writes one block, as a whole object.
    Result AppendAssetBlockOutput(Stringer& stringer,
                                  const Tarvonel::MediaIOs::SequenceOutput::AssetBlockOutput& assetBlock) const;

private:
    SharedTimePointWriter timepointConverter_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
