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
    // No short names here: a subclass would find them before those that it has brought in by `using namespace`.
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

    using Common::Serialization::Json::ToJsonConverter<BusinessEntityModel::BaseTypes::SharedReference<T>>::To;
    Common::Serialization::Result To(const BusinessEntityModel::BaseTypes::SharedReference<T>& reference,
                                     Common::Serialization::Json::Stringer& stringer) const override
    {
        const auto object = stringer.ObjectScope();
        return Append(reference, stringer);
    }

    /// Writes the members of the reference into an object that is already open.
    Common::Serialization::Result Append(const BusinessEntityModel::BaseTypes::SharedReference<T>& reference,
                                         Common::Serialization::Json::Stringer& stringer) const
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
