#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/EditorialMetadata.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Utf8String.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/Tarvonel/Export.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

/// What every media channel of the server has: the base of MediaInput and MediaOutput, as which alone channels can be
/// copied. By default everything is empty.
///
/// A copy shares the metadata profiles and the media asset: what is changed in a profile through one channel changes
/// for the other, also from another thread. A copy that is to be changed on its own gets `Metadata().Clone()` first.
class QIV_DATAMODEL_TARVONEL_EXPORT MediaIO
{
public:
    /// The kind of a channel. A channel is of the class that its mode names: code that asks for the mode then treats it
    /// as that class without further check.
    enum class Mode
    {
        Input = 0,  ///< MediaInput
        Output = 1, ///< MediaOutput
    };

    virtual ~MediaIO();

    virtual Mode GetMode() const = 0;

    const BusinessEntityModel::BaseTypes::Identifier& Id() const noexcept { return id_; }
    void Id(const BusinessEntityModel::BaseTypes::Identifier& id) { id_ = id; }
    void Id(BusinessEntityModel::BaseTypes::Identifier&& id) { id_ = std::move(id); }

    /// The display name.
    const BusinessEntityModel::BaseTypes::Utf8String& Name() const noexcept { return name_; }
    void Name(const BusinessEntityModel::BaseTypes::Utf8String& name) { name_ = name; }
    void Name(BusinessEntityModel::BaseTypes::Utf8String&& name) { name_ = std::move(name); }

    const BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>& MediaAssetOnAir() const noexcept
    {
        return mediaAssetOnAir_;
    }
    void MediaAssetOnAir(const BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>& mediaAsset)
    {
        mediaAssetOnAir_ = mediaAsset;
    }
    void MediaAssetOnAir(BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset>&& mediaAsset)
    {
        mediaAssetOnAir_ = std::move(mediaAsset);
    }

    BusinessEntityModel::BaseTypes::EditorialMetadata& Metadata() noexcept;
    const BusinessEntityModel::BaseTypes::EditorialMetadata& Metadata() const noexcept;

protected:
    MediaIO() = default;
    MediaIO(const MediaIO&) = default;
    MediaIO(MediaIO&&) = default;
    MediaIO& operator=(const MediaIO&) = default;
    MediaIO& operator=(MediaIO&&) = default;

    /// Whether the members of this class are equal, references by their identifiers.
    bool HasEqualCommonMembers(const MediaIO& other) const;

private:
    BusinessEntityModel::BaseTypes::Identifier id_;
    BusinessEntityModel::BaseTypes::Utf8String name_;
    BusinessEntityModel::BaseTypes::SharedReference<MediaAssets::MediaAsset> mediaAssetOnAir_;
    BusinessEntityModel::BaseTypes::EditorialMetadata metadata_;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
