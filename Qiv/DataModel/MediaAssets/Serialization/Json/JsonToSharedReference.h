#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/Common/Serialization/Json/FromJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/ReferenceForm.h>

#include <memory>
#include <string>
#include <utility>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

/// Reads a reference to a `T`, in one of two forms:
///
///     {"_type":"MediaAssetRef","id":"a1"}                       by identifier only
///     {"_type":"MediaAssetRef","id":"a1","mediaAsset":{...}}    with the object embedded
///
/// The first form has "id" and at most a "_type" that is not null beside it; the reference then holds no object. In the
/// second form the identifier is the embedded object's own, whatever "id" says. "_type" is optional and compared when
/// it is a string. An "id" that is a number or a boolean is taken as jsoncpp's text of it.
///
/// Failures leave the target untouched: "Bad _type", "Bad format" (neither form, or an array or object as "id" of the
/// first), or the embedded object's own failure.
/// Throws what the embedded object's reader throws.
template <typename T>
class QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT JsonToSharedReference
    : public Common::Serialization::Json::FromJsonConverter<BusinessEntityModel::BaseTypes::SharedReference<T>>
{
    // No short names here: a subclass would find them before those that it has brought in by `using namespace`.
public:
    using TargetReader = Common::Serialization::Json::FromJsonConverter<T>;

    /// @param typeProperty       the text that "_type" must have, for example "MediaAssetRef"
    /// @param embeddedProperty   the key of the embedded object, for example "mediaAsset"
    /// @param fromJsonConverter  the reader of the embedded object; without one an embedded object is "Bad format"
    JsonToSharedReference(const std::string& typeProperty, const std::string& embeddedProperty,
                          std::shared_ptr<TargetReader> fromJsonConverter)
        : typeProperty_(typeProperty),
          embeddedProperty_(embeddedProperty),
          fromJsonConverter_(std::move(fromJsonConverter))
    {
    }

    using Common::Serialization::Json::FromJsonConverter<BusinessEntityModel::BaseTypes::SharedReference<T>>::To;
    Common::Serialization::Result To(const Common::Serialization::Json::JsonObject& json,
                                     BusinessEntityModel::BaseTypes::SharedReference<T>& reference) const override
    {
        ReferenceForm form;
        if (auto result = ReadReferenceForm(json, typeProperty_, embeddedProperty_, form); !result)
            return result;
        if (form.embedded == nullptr)
        {
            reference = std::move(form.id);
            return {};
        }
        if (fromJsonConverter_ == nullptr)
            return BadReferenceFormat();
        auto object = std::make_shared<T>();
        if (auto result = fromJsonConverter_->To(*form.embedded, *object); !result)
            return result;
        reference = BusinessEntityModel::BaseTypes::SharedReference<T>(std::move(object));
        return {};
    }

private:
    std::string typeProperty_;
    std::string embeddedProperty_;
    std::shared_ptr<TargetReader> fromJsonConverter_;
};

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
