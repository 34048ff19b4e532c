#pragma once

#include <Qiv/DataModel/Tarvonel/MediaIOs/SequenceOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/ConversionTypes.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

/// Reads the sequence state of a player:
///
///     {"_type":"SequenceOutput","sequenceOnAir":{reference "SequenceRef"},"assetBlockOnAir":{block},
///      "nextAssetBlockOnAir":{block},"editMode":false}
///
/// A block is `{"_type":"AssetBlockOnAir","id":"b1","mediaAsset":{reference "MediaAssetRef"}}`. Every member is
/// optional; what is absent, null or of another type stays as it is, a next block too. References and blocks are
/// replaced as a whole.
///
/// Failures: "SequenceOutput is empty" and "Invalid type X : SequenceOutput expected" leave the target untouched;
/// "Invalid type X : AssetBlockOnAir expected" and those of the reference readers leave the members before them
/// applied.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT JsonToSequenceOutputConverter
    : public FromJsonConverter<Tarvonel::MediaIOs::SequenceOutput>
{
public:
    ~JsonToSequenceOutputConverter() override;

    using FromJsonConverter::To;
    Result To(const JsonObject& json, Tarvonel::MediaIOs::SequenceOutput& sequenceOutput) const override;

    /// Reads one block. A value that is no object has no members, and succeeds.
    Result ToAssetBlockOutput(const JsonObject& json,
                              Tarvonel::MediaIOs::SequenceOutput::AssetBlockOutput& assetBlock) const;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
