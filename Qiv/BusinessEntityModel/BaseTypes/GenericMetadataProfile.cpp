#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>

#include <utility>

namespace Qiv::BusinessEntityModel::BaseTypes
{

namespace
{

template <typename Dictionary, typename Visit>
bool VisitAll(Dictionary& dictionary, const Visit& visit)
{
    for (auto& [key, value] : dictionary)
    {
        if (!visit(key, value))
            return false;
    }
    return true;
}

} // namespace

GenericMetadataProfile::GenericMetadataProfile(BaseTypes::FullyQualifiedName fullyQualifiedName)
    : fullyQualifiedName_(std::move(fullyQualifiedName))
{
}

GenericMetadataProfile::~GenericMetadataProfile() = default;

BaseTypes::FullyQualifiedName GenericMetadataProfile::FullyQualifiedName() const
{
    return fullyQualifiedName_;
}

bool GenericMetadataProfile::Equals(const MetadataProfile& other) const
{
    if (other.FullyQualifiedName() != fullyQualifiedName_)
        return false;
    // Profiles of one name are of one kind by design; a foreign class that takes a generic profile's name is unequal.
    const auto* generic = dynamic_cast<const GenericMetadataProfile*>(&other);
    return generic != nullptr && generic->dictionary_ == dictionary_;
}

std::shared_ptr<MetadataProfile> GenericMetadataProfile::Clone() const
{
    return std::make_shared<GenericMetadataProfile>(*this);
}

std::int32_t GenericMetadataProfile::Size() const
{
    return static_cast<std::int32_t>(dictionary_.size());
}

void GenericMetadataProfile::Clear()
{
    dictionary_.clear();
}

// The signatures of virtual operations are kept: subclasses of other libraries override them.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool GenericMetadataProfile::Iterate(std::function<bool(const std::string& key, const std::string& value)> visit) const
{
    return VisitAll(dictionary_, visit);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool GenericMetadataProfile::Iterate(std::function<bool(const std::string& key, std::string& value)> visit)
{
    return VisitAll(dictionary_, visit);
}

bool GenericMetadataProfile::Contains(const std::string& key) const
{
    return dictionary_.count(key) != 0;
}

bool GenericMetadataProfile::Erase(const std::string& key)
{
    return dictionary_.erase(key) != 0;
}

void GenericMetadataProfile::Set(std::string key, std::string value)
{
    dictionary_.insert_or_assign(std::move(key), std::move(value));
}

void GenericMetadataProfile::Assign(std::string_view key, std::string_view value)
{
    // Keys mostly come in order, since readers find them so: then this is the place at once.
    if (dictionary_.empty() || dictionary_.rbegin()->first < key)
        dictionary_.emplace_hint(dictionary_.end(), key, value);
    else
        dictionary_[std::string(key)] = value;
}

std::string GenericMetadataProfile::Get(const std::string& key) const
{
    const auto entry = dictionary_.find(key);
    return entry != dictionary_.end() ? entry->second : std::string();
}

std::string& GenericMetadataProfile::operator[](const std::string& key)
{
    return dictionary_[key];
}

std::vector<std::string> GenericMetadataProfile::Keys() const
{
    std::vector<std::string> keys;
    keys.reserve(dictionary_.size());
    for (const auto& entry : dictionary_)
        keys.push_back(entry.first);
    return keys;
}

std::vector<std::string> GenericMetadataProfile::Values() const
{
    std::vector<std::string> values;
    values.reserve(dictionary_.size());
    for (const auto& entry : dictionary_)
        values.push_back(entry.second);
    return values;
}

} // namespace Qiv::BusinessEntityModel::BaseTypes
