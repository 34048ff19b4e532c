#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace Qiv::BusinessEntityModel::BaseTypes
{

const MetadataProfile& MetadataProfileDictionary::At(const FullyQualifiedName& name) const
{
    const auto entry = values_.find(name);
    if (entry == values_.end() || entry->second == nullptr)
        throw std::out_of_range("map::at");
    return *entry->second;
}

MetadataProfile& MetadataProfileDictionary::At(const FullyQualifiedName& name)
{
    return const_cast<MetadataProfile&>(std::as_const(*this).At(name));
}

std::shared_ptr<MetadataProfile> MetadataProfileDictionary::Find(std::string_view name) const
{
    const auto entry = values_.find(name);
    return entry != values_.end() ? entry->second : nullptr;
}

std::vector<FullyQualifiedName> MetadataProfileDictionary::Keys() const
{
    std::vector<FullyQualifiedName> keys;
    keys.reserve(values_.size());
    for (const auto& entry : values_)
        keys.push_back(entry.first);
    return keys;
}

std::vector<std::shared_ptr<MetadataProfile>> MetadataProfileDictionary::Values() const
{
    std::vector<std::shared_ptr<MetadataProfile>> values;
    values.reserve(values_.size());
    for (const auto& entry : values_)
        values.push_back(entry.second);
    return values;
}

void MetadataProfileDictionary::Set(const std::shared_ptr<MetadataProfile>& profile)
{
    if (profile == nullptr)
        throw std::invalid_argument("MetadataProfileDictionary::Set: null profile");
    values_.insert_or_assign(values_.end(), profile->FullyQualifiedName(), profile); // see the other Set
}

void MetadataProfileDictionary::Set(const FullyQualifiedName& name, const std::shared_ptr<MetadataProfile>& profile)
{
    values_.insert_or_assign(values_.end(), name, profile); // the place at once when names come in order
}

bool MetadataProfileDictionary::Erase(const FullyQualifiedName& name)
{
    return values_.erase(name) != 0;
}

bool MetadataProfileDictionary::Erase(const std::shared_ptr<MetadataProfile>& profile)
{
    return profile != nullptr && Erase(*profile);
}

bool MetadataProfileDictionary::Erase(const MetadataProfile& profile)
{
    return Erase(profile.FullyQualifiedName());
}

void MetadataProfileDictionary::DeepCopy(const MetadataProfileDictionary& other)
{
    values_ = other.Clone().values_;
}

MetadataProfileDictionary MetadataProfileDictionary::Clone() const
{
    MetadataProfileDictionary clone;
    for (const auto& [name, profile] : values_)
        clone.values_.emplace_hint(clone.values_.end(), name, profile != nullptr ? profile->Clone() : nullptr);
    return clone;
}

bool MetadataProfileDictionary::operator==(const MetadataProfileDictionary& other) const
{
    const auto equal = [](const auto& left, const auto& right)
    {
        if (left.first != right.first)
            return false;
        if (left.second == nullptr || right.second == nullptr)
            return left.second == right.second;
        return left.second->Equals(*right.second);
    };
    return std::equal(values_.begin(), values_.end(), other.values_.begin(), other.values_.end(), equal);
}

} // namespace Qiv::BusinessEntityModel::BaseTypes
