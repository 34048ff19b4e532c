#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Export.h>
#include <Qiv/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfile.h>

#include <cstddef>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// The metadata profiles of one channel, at most one under each name, in ascending byte-wise order of the names.
///
/// A copy shares the profiles; Clone() and DeepCopy() duplicate them. An entry may hold a null pointer: it counts in
/// Size(), Contains(), Keys() and Values(), but it has no profile to give.
class QIV_BUSINESSENTITYMODEL_BASETYPES_EXPORT MetadataProfileDictionary
{
    struct Less
    {
        using is_transparent = void;
        static std::string_view Text(std::string_view name) noexcept { return name; }
        static std::string_view Text(const FullyQualifiedName& name) noexcept { return name.Value(); }
        template <typename Left, typename Right>
        bool operator()(const Left& left, const Right& right) const noexcept
        {
            return Text(left) < Text(right);
        }
    };

    using Profiles = std::map<FullyQualifiedName, std::shared_ptr<MetadataProfile>, Less>;

public:
    using const_iterator = Profiles::const_iterator;

    /// The entries, pairs of name and profile, in the order of their names. A profile may be null.
    const_iterator begin() const noexcept { return values_.begin(); }
    const_iterator end() const noexcept { return values_.end(); }

    void Clear() noexcept { values_.clear(); }
    bool Empty() const noexcept { return values_.empty(); }
    std::size_t Size() const noexcept { return values_.size(); }
    bool Contains(const FullyQualifiedName& name) const { return values_.count(name) != 0; }

    /// The profile under `name`; throws std::out_of_range with the text "map::at" when there is none.
    const MetadataProfile& At(const FullyQualifiedName& name) const;
    MetadataProfile& At(const FullyQualifiedName& name);
    /// The same as At: profiles are abstract, so that an absent one cannot be inserted.
    const MetadataProfile& operator[](const FullyQualifiedName& name) const { return At(name); }
    MetadataProfile& operator[](const FullyQualifiedName& name) { return At(name); }
    /// The profile under `name`, or null when there is none.
    std::shared_ptr<MetadataProfile> Find(std::string_view name) const;

    /// All names, and all profiles in the order of their names.
    std::vector<FullyQualifiedName> Keys() const;
    std::vector<std::shared_ptr<MetadataProfile>> Values() const;

    /// Stores `profile` under its own name, in place of a profile that the name had. Throws std::invalid_argument when
    /// it is null.
    void Set(const std::shared_ptr<MetadataProfile>& profile);
    /// Stores `profile`, which may be null, under `name`.
    void Set(const FullyQualifiedName& name, const std::shared_ptr<MetadataProfile>& profile);
    /// Removes the entry under `name`; false when there is none.
    bool Erase(const FullyQualifiedName& name);
    /// Removes the entry under the name of `profile`; false when there is none or `profile` is null.
    bool Erase(const std::shared_ptr<MetadataProfile>& profile);
    bool Erase(const MetadataProfile& profile);

    /// Replaces the content by clones of the profiles of `other`; when cloning throws, the content stays.
    void DeepCopy(const MetadataProfileDictionary& other);
    MetadataProfileDictionary Clone() const;

    /// Equal when the names are and, name by name, the profiles.
    bool operator==(const MetadataProfileDictionary& other) const;
    bool operator!=(const MetadataProfileDictionary& other) const { return !(*this == other); }

private:
    Profiles values_;
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
