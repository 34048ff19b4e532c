#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Export.h>
#include <Qiv/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>

#include <memory>
#include <string>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// A named group of facts about a channel: the base of every kind of profile. Profiles are held by shared pointers and
/// duplicated by Clone(); only their kinds can be copied, so that none is sliced.
class QIV_BUSINESSENTITYMODEL_BASETYPES_EXPORT MetadataProfile
{
public:
    virtual ~MetadataProfile();

    /// The namespace of the profile, under which a dictionary keeps it.
    virtual BaseTypes::FullyQualifiedName FullyQualifiedName() const = 0;
    /// True when `other` has the same name, is of the same kind and holds the same facts.
    virtual bool Equals(const MetadataProfile& other) const = 0;
    virtual std::shared_ptr<MetadataProfile> Clone() const = 0;
    /// The text of the fully qualified name and nothing else.
    virtual std::string ToString() const;

    bool operator==(const MetadataProfile& other) const { return Equals(other); }
    bool operator!=(const MetadataProfile& other) const { return !Equals(other); }

    /// Assigns nothing: profiles have no member in common, and the facts and the name of a profile stay.
    MetadataProfile& operator=(const MetadataProfile&) = default;

protected:
    MetadataProfile() = default;
    MetadataProfile(const MetadataProfile&) = default;
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
