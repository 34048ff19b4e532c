#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToMediaAssetConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToTimePointConverter.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

using namespace Common::Serialization::Json;
using BusinessEntityModel::BaseTypes::Identifier;
using BusinessEntityModel::BaseTypes::Utf8String;
using Common::Serialization::Result;
using TimePoints::TimePoint;

namespace
{

struct Keys
{
    enum class Index
    {
        Type,
        Id,
        InPoint,
        Name,
        OutPoint
    };
    static constexpr std::array<std::string_view, 5> names{"_type", "id", "inPoint", "name", "outPoint"};
};
using Key = Keys::Index;

} // namespace

JsonToMediaAssetConverter::~JsonToMediaAssetConverter() = default;

Result JsonToMediaAssetConverter::To(const JsonObject& json, MediaAsset& mediaAsset) const
{
    const KnownMembers<Keys> members(json);
    if (members.IsEmpty())
        return "MediaAsset is empty";
    if (auto result = CheckType(members.Text(Key::Type), "MediaAsset"); !result)
        return result;

    if (const auto id = members.Text(Key::Id))
        mediaAsset.Id(Identifier(*id));

    if (const auto name = members.Text(Key::Name))
        mediaAsset.Name(Utf8String(*name));

    const JsonToTimePointConverter timePointConverter;
    if (const auto* inPoint = members.Object(Key::InPoint))
    {
        TimePoint timePoint;
        if (auto result = timePointConverter.To(*inPoint, timePoint); !result)
            return result;
        mediaAsset.InPoint(timePoint);
    }

    if (const auto* outPoint = members.Object(Key::OutPoint))
    {
        TimePoint timePoint;
        if (auto result = timePointConverter.To(*outPoint, timePoint); !result)
            return result;
        mediaAsset.OutPoint(timePoint);
    }

    return {};
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
