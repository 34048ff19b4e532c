#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Export.h>
#include <Qiv/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfile.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// A profile that holds any number of text values under text keys, in ascending byte-wise order of the keys.
class QIV_BUSINESSENTITYMODEL_BASETYPES_EXPORT GenericMetadataProfile : public MetadataProfile
{
public:
    using Dictionary = std::map<std::string, std::string>;

    GenericMetadataProfile() = default;
    explicit GenericMetadataProfile(BaseTypes::FullyQualifiedName fullyQualifiedName);
    GenericMetadataProfile(const GenericMetadataProfile&) = default;
    GenericMetadataProfile(GenericMetadataProfile&&) = default;
    GenericMetadataProfile& operator=(const GenericMetadataProfile&) = default;
    GenericMetadataProfile& operator=(GenericMetadataProfile&&) = default;
    ~GenericMetadataProfile() override;

    BaseTypes::FullyQualifiedName FullyQualifiedName() const override;
    /// True when `other` is a generic profile of the same name with the same keys and values.
    bool Equals(const MetadataProfile& other) const override;
    std::shared_ptr<MetadataProfile> Clone() const override;

    /// The number of keys.
    virtual std::int32_t Size() const;
    /// Removes every key; the name stays.
    virtual void Clear();
    /// Calls `visit` with each key and value in key order until it returns false; returns whether it never did.
    ///
    /// An empty function throws std::bad_function_call as soon as there is a pair to visit. `visit` neither adds nor
    /// removes keys.
    virtual bool Iterate(std::function<bool(const std::string& key, const std::string& value)> visit) const;
    /// The same, with values that `visit` may change in place.
    virtual bool Iterate(std::function<bool(const std::string& key, std::string& value)> visit);

    bool Contains(const std::string& key) const;
    /// Removes `key` and its value; false when the profile does not have it.
    bool Erase(const std::string& key);
    void Set(std::string key, std::string value);
    /// The same for texts that are held elsewhere: each is copied once, straight to its place.
    void Assign(std::string_view key, std::string_view value);
    /// The value of `key`; empty when the profile does not have it.
    std::string Get(const std::string& key) const;
    /// The value of `key`, which is inserted with an empty value when the profile does not have it.
    std::string& operator[](const std::string& key);
    /// All keys, and all values in the order of their keys.
    std::vector<std::string> Keys() const;
    std::vector<std::string> Values() const;

private:
    BaseTypes::FullyQualifiedName fullyQualifiedName_;
    Dictionary dictionary_;
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
