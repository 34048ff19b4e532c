#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/Write.h>

#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/SequenceToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/MediaAssetToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/TimePointToJsonObjectConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Writing.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MetadataProfileDictionaryToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/SequenceOutputToJsonConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/NodeToJsonConverter.h>

#include <variant>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

using namespace Serialization::MediaIOs::Json;

Result Write(const Tarvonel::MediaIOs::MediaIO& channel, Stringer& stringer)
{
    return MediaIOToJsonConverter().To(channel, stringer);
}

Result Write(const Tarvonel::MediaIOs::SequenceOutput& sequenceOutput, Stringer& stringer)
{
    return SequenceOutputToJsonConverter().To(sequenceOutput, stringer);
}

Result Write(const Tarvonel::MediaIOs::Speed& speed, Stringer& stringer)
{
    return Details::WriteSpeed(stringer, speed);
}

Result Write(const Tarvonel::MediaIOs::Boundary& boundary, Stringer& stringer)
{
    return Details::WriteBoundary(stringer, boundary,
                                  MediaAssets::Serialization::Json::TimePointToJsonObjectConverter());
}

Result Write(const Tarvonel::Nodes::Node& node, Stringer& stringer)
{
    return Nodes::Json::NodeToJsonConverter().To(node, stringer);
}

Result Write(const BusinessEntityModel::BaseTypes::MetadataProfileDictionary& metadata, Stringer& stringer)
{
    return MetadataProfileDictionaryToJsonConverter().To(metadata, stringer);
}

Result Write(const MediaAssets::MediaAsset& mediaAsset, Stringer& stringer)
{
    return MediaAssets::Serialization::Json::MediaAssetToJsonConverter().To(mediaAsset, stringer);
}

Result Write(const BusinessEntityModel::Edits::Sequence& sequence, Stringer& stringer)
{
    return BusinessEntityModel::Edits::Serialization::Json::SequenceToJsonConverter().To(sequence, stringer);
}

Result Write(const AnyEntity& entity, Stringer& stringer)
{
    return std::visit([&stringer](const auto& alternative) { return Write(alternative, stringer); }, entity);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
