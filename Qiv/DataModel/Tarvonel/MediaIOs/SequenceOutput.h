#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Optional.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/Edits/Sequence.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/Tarvonel/Export.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// The state of a player channel that plays a sequence. By default everything is empty and it is not in edit mode.
/// Copies share the sequence and the media assets; equality compares these by their identifiers.
class QIV_DATAMODEL_TARVONEL_EXPORT SequenceOutput
{
public:
    /// One block of the sequence and the media asset that it plays.
    class QIV_DATAMODEL_TARVONEL_EXPORT AssetBlockOutput
    {
    public:
        AssetBlockOutput();
        AssetBlockOutput(const AssetBlockOutput&);
        AssetBlockOutput(AssetBlockOutput&&) noexcept;
        AssetBlockOutput& operator=(const AssetBlockOutput&);
        AssetBlockOutput& operator=(AssetBlockOutput&&) noexcept;
        ~AssetBlockOutput();

        /// The identifier of the block within the sequence.
        const BusinessEntityModel::BaseTypes::Identifier& Id() const noexcept { return id_; }
        void Id(const BusinessEntityModel::BaseTypes::Identifier& id) { id_ = id; }
        void Id(BusinessEntityModel::BaseTypes::Identifier&& id) { id_ = std::move(id); }

        const BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>& MediaAssetRef() const noexcept
        {
            return mediaAssetRef_;
        }
        void MediaAssetRef(const BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>& mediaAsset)
        {
            mediaAssetRef_ = mediaAsset;
        }
        void MediaAssetRef(BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>&& mediaAsset)
        {
            mediaAssetRef_ = std::move(mediaAsset);
        }

        bool operator==(const AssetBlockOutput& other) const noexcept;
        bool operator!=(const AssetBlockOutput& other) const noexcept { return !(*this == other); }

    private:
        BusinessEntityModel::BaseTypes::Identifier id_;
        BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset> mediaAssetRef_;
    };

    SequenceOutput();
    SequenceOutput(const SequenceOutput&);
    SequenceOutput(SequenceOutput&&) noexcept;
    SequenceOutput& operator=(const SequenceOutput&);
    SequenceOutput& operator=(SequenceOutput&&) noexcept;
    ~SequenceOutput();

    const BusinessEntityModel::BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence>&
    SequenceOnAir() const noexcept
    {
        return sequenceOnAir_;
    }
    /// An lvalue is only read; it is taken by non-const reference as the server's other parts declare it.
    void SequenceOnAir(BusinessEntityModel::BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence>& sequence)
    {
        sequenceOnAir_ = sequence;
    }
    void SequenceOnAir(BusinessEntityModel::BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence>&& sequence)
    {
        sequenceOnAir_ = std::move(sequence);
    }

    const AssetBlockOutput& AssetBlockOnAir() const noexcept { return assetBlockOnAir_; }
    void AssetBlockOnAir(const AssetBlockOutput& block) { assetBlockOnAir_ = block; }
    void AssetBlockOnAir(AssetBlockOutput&& block) { assetBlockOnAir_ = std::move(block); }

    /// The block that follows the one on air, when there is one. Through the non-const form it can be changed and
    /// cleared.
    const BusinessEntityModel::BaseTypes::Optional<AssetBlockOutput>& NextAssetBlockOnAir() const noexcept
    {
        return nextAssetBlockOnAir_;
    }
    BusinessEntityModel::BaseTypes::Optional<AssetBlockOutput>& NextAssetBlockOnAir() noexcept
    {
        return nextAssetBlockOnAir_;
    }
    void NextAssetBlockOnAir(const AssetBlockOutput& block) { nextAssetBlockOnAir_ = block; }
    void NextAssetBlockOnAir(AssetBlockOutput&& block) { nextAssetBlockOnAir_ = std::move(block); }

    /// True while the sequence is being edited.
    bool EditMode() const noexcept { return editMode_; }
    void EditMode(bool editMode) { editMode_ = editMode; }

    bool operator==(const SequenceOutput& other) const;
    bool operator!=(const SequenceOutput& other) const { return !(*this == other); }

private:
    BusinessEntityModel::BaseTypes::SharedReference<BusinessEntityModel::Edits::Sequence> sequenceOnAir_;
    AssetBlockOutput assetBlockOnAir_;
    BusinessEntityModel::BaseTypes::Optional<AssetBlockOutput> nextAssetBlockOnAir_;
    bool editMode_ = false;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
