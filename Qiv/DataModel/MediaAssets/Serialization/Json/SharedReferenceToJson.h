#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Qiv/Common/Serialization/Json/ToJsonConverter.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/Export.h>
#include <Qiv/DataModel/MediaAssets/Serialization/Json/ReferenceForm.h>

#include <memory>
#include <string>
#include <utility>

namespace Qiv::DataModel::MediaAssets::Serialization::Json
{

/// Writes a reference to a `T`; only the form with `false` exists.
template <typename T, bool>
class SharedReferenceToJson;

/// Writes a reference to a `T` as an object: "_type" and "id" always, an empty identifier too, and the object under its
/// key when the reference holds one. A failure of the object's writer is returned after the object has been closed.
template <typename T>
class QIV_DATAMODEL_MEDIAASSETS_SERIALIZATION_JSON_EXPORT SharedReferenceToJson<T, false>
    : public Common::Serialization::Json::ToJsonConverter<BusinessEntityModel::BaseTypes::SharedReference<T>>
{
    using Reference = BusinessEntityModel::BaseTypes::SharedReference<T>;
    using Base = Common::Serialization::Json::ToJsonConverter<Reference>;
    using Stringer = Common::Serialization::Json::Stringer;
    using Result = Common::Serialization::Result;

public:
    using TargetWriter = Common::Serialization::Json::ToJsonConverter<T>;

    /// @param typeProperty      the text of "_type", for example "MediaAssetRef"
    /// @param embeddedProperty  the key of the embedded object, for example "mediaAsset"
    /// @param jsonConverter     the writer of the embedded object; without one it is not written
    SharedReferenceToJson(const std::string& typeProperty, const std::string& embeddedProperty,
                          std::shared_ptr<TargetWriter> jsonConverter)
        : typeProperty_(typeProperty), embeddedProperty_(embeddedProperty), jsonConverter_(std::move(jsonConverter))
    {
    }

    using Base::To;
    Result To(const Reference& reference, Stringer& stringer) const override
    {
        const auto object = stringer.ObjectScope();
        return Append(reference, stringer);
    }

    /// Writes the members of the reference into an object that is already open.
    Result Append(const Reference& reference, Stringer& stringer) const
    {
        AppendReferenceMembers(stringer, typeProperty_, reference.Id());
        if (reference.Pointer() == nullptr || jsonConverter_ == nullptr)
            return {};
        stringer.Key(embeddedProperty_.c_str());
        return AppendNested(stringer, *jsonConverter_, *reference.Pointer());
    }

private:
    std::string typeProperty_;
    std::string embeddedProperty_;
    std::shared_ptr<TargetWriter> jsonConverter_;
};

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json
