#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSequenceOutputConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/References.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace Common::Serialization::Json;
using BusinessEntityModel::BaseTypes::Identifier;
using Tarvonel::MediaIOs::SequenceOutput;

namespace
{

struct SequenceOutputKeys
{
    enum class Index
    {
        Type,
        AssetBlockOnAir,
        EditMode,
        NextAssetBlockOnAir,
        SequenceOnAir
    };
    static constexpr std::array<std::string_view, 5> names{"_type", "assetBlockOnAir", "editMode",
                                                           "nextAssetBlockOnAir", "sequenceOnAir"};
};

struct AssetBlockKeys
{
    enum class Index
    {
        Type,
        Id,
        MediaAsset
    };
    static constexpr std::array<std::string_view, 3> names{"_type", "id", "mediaAsset"};
};

} // namespace

JsonToSequenceOutputConverter::~JsonToSequenceOutputConverter() = default;

Result JsonToSequenceOutputConverter::To(const JsonObject& json, SequenceOutput& sequenceOutput) const
{
    using Key = SequenceOutputKeys::Index;

    const KnownMembers<SequenceOutputKeys> members(json);
    if (members.IsEmpty())
        return "SequenceOutput is empty";
    if (auto result = CheckType(members.Text(Key::Type), "SequenceOutput"); !result)
        return result;

    if (const auto* sequenceOnAir = members.Object(Key::SequenceOnAir))
    {
        Details::SequenceReference reference;
        if (auto result = Details::SequenceReferenceReader().To(*sequenceOnAir, reference); !result)
            return result;
        sequenceOutput.SequenceOnAir(std::move(reference));
    }

    if (const auto* assetBlockOnAir = members.Object(Key::AssetBlockOnAir))
    {
        SequenceOutput::AssetBlockOutput assetBlock;
        if (auto result = ToAssetBlockOutput(*assetBlockOnAir, assetBlock); !result)
            return result;
        sequenceOutput.AssetBlockOnAir(std::move(assetBlock));
    }

    if (const auto* nextAssetBlockOnAir = members.Object(Key::NextAssetBlockOnAir))
    {
        SequenceOutput::AssetBlockOutput assetBlock;
        if (auto result = ToAssetBlockOutput(*nextAssetBlockOnAir, assetBlock); !result)
            return result;
        sequenceOutput.NextAssetBlockOnAir(std::move(assetBlock));
    }

    if (const auto editMode = members.Bool(Key::EditMode))
        sequenceOutput.EditMode(*editMode);

    return {};
}

Result JsonToSequenceOutputConverter::ToAssetBlockOutput(const JsonObject& json,
                                                         SequenceOutput::AssetBlockOutput& assetBlock) const
{
    using Key = AssetBlockKeys::Index;

    const KnownMembers<AssetBlockKeys> members(json);
    if (auto result = CheckType(members.Text(Key::Type), "AssetBlockOnAir"); !result)
        return result;

    if (const auto id = members.Text(Key::Id))
        assetBlock.Id(Identifier(*id));

    if (const auto* mediaAsset = members.Object(Key::MediaAsset))
    {
        Details::MediaAssetReference reference;
        if (auto result = Details::MediaAssetReferenceReader().To(*mediaAsset, reference); !result)
            return result;
        assetBlock.MediaAssetRef(std::move(reference));
    }

    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
