#pragma once

#include <Qiv/Common/Serialization/Json/ToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>

#include <memory>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

/// Writes a media asset, in the form that `JsonToMediaAssetConverter` reads: "_type" and "id" always, "name", "inPoint"
/// and "outPoint" unless they are empty.
///
/// A failure of the time point writer is returned unchanged, after the object has been closed; what follows the failing
/// member is not written.
class QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT MediaAssetToJsonConverter
    : public Common::Serialization::Json::ToJsonConverter<MediaAsset>
{
public:
    using TimePointWriter = Common::Serialization::Json::ToJsonConverter<TimePoints::TimePoint>;

    /// Writes time points with a `TimePointToJsonObjectConverter`.
    MediaAssetToJsonConverter();
    /// Writes time points with `timepointConverter`; an empty pointer stands for the default writer.
    explicit MediaAssetToJsonConverter(std::shared_ptr<TimePointWriter> timepointConverter);
    MediaAssetToJsonConverter(const MediaAssetToJsonConverter&) = default;
    MediaAssetToJsonConverter& operator=(const MediaAssetToJsonConverter&) = default;
    ~MediaAssetToJsonConverter() override;

    using ToJsonConverter::To;
    Common::Serialization::Result To(const MediaAsset& mediaAsset,
                                     Common::Serialization::Json::Stringer& stringer) const override;

private:
    std::shared_ptr<TimePointWriter> timepointConverter_;
};

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
