#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadMediaAsset.h>

#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/MediaAssetForm.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReadTimePoint.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
{

using namespace Common::Serialization::Json::Details;
using BusinessEntityModel::BaseTypes::Identifier;
using BusinessEntityModel::BaseTypes::Utf8String;
using Common::Serialization::Result;
using TimePoints::TimePoint;

Result ReadMediaAsset(ValueView json, MediaAsset& mediaAsset)
{
    using Form = MediaAssetForm;

    const KnownMembers<Form> members(json);
    if (auto result = members.CheckShape(); !result)
        return result;

    if (const auto id = members.Get<Form::id>())
        mediaAsset.Id(Identifier(*id));

    if (const auto name = members.Get<Form::name>())
        mediaAsset.Name(Utf8String(*name));

    if (const auto inPoint = members.Get<Form::inPoint>())
    {
        TimePoint timePoint;
        if (auto result = ReadTimePoint(inPoint, timePoint); !result)
            return result;
        mediaAsset.InPoint(timePoint);
    }

    if (const auto outPoint = members.Get<Form::outPoint>())
    {
        TimePoint timePoint;
        if (auto result = ReadTimePoint(outPoint, timePoint); !result)
            return result;
        mediaAsset.OutPoint(timePoint);
    }

    return {};
}

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
