#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSequenceOutputConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::SequenceOutput;

JsonToSequenceOutputConverter::~JsonToSequenceOutputConverter() = default;

Result JsonToSequenceOutputConverter::To(const JsonObject& json, SequenceOutput& sequenceOutput) const
{
    return Details::ReadSequenceOutput(json, sequenceOutput);
}

Result JsonToSequenceOutputConverter::ToAssetBlockOutput(const JsonObject& json,
                                                         SequenceOutput::AssetBlockOutput& assetBlock) const
{
    return Details::ReadAssetBlock(json, assetBlock);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
