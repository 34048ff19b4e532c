#include <Qiv/DataModel/MediaAssets/MediaAsset.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/JsonToSharedReference.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/SharedReferenceToJson.h>

#include <gtest/gtest.h>

// As a caller's own code would stand: with short names brought in before the subclasses.
using namespace Qiv::BusinessEntityModel::BaseTypes;
using namespace Qiv::Common::Serialization;
using namespace Qiv::Common::Serialization::Json;
using namespace Qiv::DataModel::MediaAssets;
using namespace Qiv::DataModel::MediaAssets::Serialization::Json;

namespace
{

struct Base // which the subclasses must not find in their bases
{
    static constexpr auto id = "own";
};

struct Reader : JsonToSharedReference<MediaAsset>
{
    using Reference = SharedReference<MediaAsset>;
    using JsonToSharedReference::JsonToSharedReference, JsonToSharedReference::To;

    Result To(const JsonObject& json, Reference& reference) const override
    {
        if (!json.isNull())
            return JsonToSharedReference::To(json, reference);
        reference = Identifier(Base::id);
        return Result();
    }
};

struct Writer : SharedReferenceToJson<MediaAsset, false>
{
    using SharedReferenceToJson::SharedReferenceToJson, SharedReferenceToJson::To;

    Result To(const SharedReference<MediaAsset>& reference, Stringer& stringer) const override
    {
        const auto array = stringer.ArrayScope();
        return SharedReferenceToJson::To(reference, stringer);
    }
};

TEST(SharedReferenceConverters, CanBeRefinedByASubclassWithShortNames)
{
    const FromJsonConverter<SharedReference<MediaAsset>>& reader = Reader("MediaAssetRef", "mediaAsset", nullptr);
    const ToJsonConverter<SharedReference<MediaAsset>>& writer = Writer("MediaAssetRef", "mediaAsset", nullptr);
    SharedReference<MediaAsset> reference;
    EXPECT_TRUE(reader.To(JsonObject(), reference)); // by the overload for temporary values
    Stringer json;
    EXPECT_TRUE(writer.To(reference, json));
    EXPECT_EQ(json.ToString(), R"([{"_type":"MediaAssetRef","id":"own"}])");
    EXPECT_STREQ(reader.To(JsonObject("text"), reference).ErrorMessage(), "Bad format");
}

} // namespace
