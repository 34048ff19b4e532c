#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/MetadataValues.h>

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/OperatorProfileForm.h>

#include <charconv>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <system_error>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Channels
{

using namespace BusinessEntityModel::BaseTypes;
using Common::Serialization::Json::Details::keyOf;
using MediaIOs::Json::Details::OperatorProfileForm;
using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

namespace
{

constexpr auto serverIdKey = keyOf<OperatorProfileForm::serverId>;
constexpr auto indexKey = keyOf<OperatorProfileForm::index>;

std::optional<std::string> ServerIdOf(const PelOperatorMetadataProfile& profile)
{
    return profile.ServerId() != PelOperatorMetadataProfile::EmptyServerSerialNumber()
               ? std::optional<std::string>(std::to_string(profile.ServerId()))
               : std::nullopt;
}

std::optional<std::string> IndexOf(const PelOperatorMetadataProfile& profile)
{
    return profile.Index() >= 0 ? std::optional<std::string>(std::to_string(profile.Index())) : std::nullopt;
}

// What a generic profile calls the flat key; nothing when it has no such key.
std::optional<std::string> KeyWithin(const GenericMetadataProfile& profile, std::string_view key)
{
    const auto name = profile.FullyQualifiedName();
    const auto& prefix = name.Value();
    if (key.size() <= prefix.size() || key.substr(0, prefix.size()) != prefix || key[prefix.size()] != '.')
        return std::nullopt;
    std::string rest(key.substr(prefix.size() + 1));
    return profile.Contains(rest) ? std::optional<std::string>(std::move(rest)) : std::nullopt;
}

[[noreturn]] void Refuse(std::string_view key, const char* why)
{
    throw std::invalid_argument(std::string("metadata key '").append(key).append("': ").append(why));
}

// Applies `change` to the profile under `name`: to a new one when there is none, and to a clone when somebody else
// holds the profile, too.
template <typename Profile, typename Make, typename Change>
void ChangeProfile(EditorialMetadata& metadata, const FullyQualifiedName& name, std::string_view key, const Make& make,
                   const Change& change)
{
    constexpr long holders = 2; // the dictionary and this function

    auto profile = metadata.Find(name.Value());
    if (profile == nullptr)
        profile = make();
    else if (profile.use_count() > holders)
        profile = profile->Clone();
    auto* const known = dynamic_cast<Profile*>(profile.get());
    if (known == nullptr)
        Refuse(key, "its profile is of another kind");
    change(*known);
    metadata.Set(name, profile);
}

void SetOperatorValue(EditorialMetadata& metadata, std::string_view key, std::string_view value)
{
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc() || end != value.data() + value.size())
        Refuse(key, "the value is no whole number of 32 bits");
    if (key == serverIdKey && !OperatorProfileForm::IsServerId(number))
        Refuse(key, "the value is no positive multiple of 10");
    ChangeProfile<PelOperatorMetadataProfile>(
        metadata, FullyQualifiedName(OperatorProfileForm::profileName), key,
        [] { return std::make_shared<PelOperatorMetadataProfile>(); },
        [&](PelOperatorMetadataProfile& profile)
        { key == serverIdKey ? profile.ServerId(number) : profile.Index(number); });
}

} // namespace

std::vector<std::pair<std::string, std::string>> MetadataValues(const EditorialMetadata& metadata)
{
    std::vector<std::pair<std::string, std::string>> values;
    for (const auto& [name, profile] : metadata)
    {
        if (const auto* const generic = dynamic_cast<const GenericMetadataProfile*>(profile.get()))
        {
            const auto prefix = generic->FullyQualifiedName().Value() + '.';
            generic->Iterate(
                [&](const std::string& key, const std::string& value)
                {
                    values.emplace_back(prefix + key, value);
                    return true;
                });
        }
        else if (const auto* const theOperator = dynamic_cast<const PelOperatorMetadataProfile*>(profile.get()))
        {
            if (auto serverId = ServerIdOf(*theOperator))
                values.emplace_back(serverIdKey, *std::move(serverId));
            if (auto index = IndexOf(*theOperator))
                values.emplace_back(indexKey, *std::move(index));
        }
    }
    return values;
}

std::optional<std::string> MetadataValue(const EditorialMetadata& metadata, std::string_view key)
{
    for (const auto& [name, profile] : metadata)
    {
        if (const auto* const generic = dynamic_cast<const GenericMetadataProfile*>(profile.get()))
        {
            if (const auto keyWithin = KeyWithin(*generic, key))
                return generic->Get(*keyWithin);
        }
        else if (const auto* const theOperator = dynamic_cast<const PelOperatorMetadataProfile*>(profile.get()))
        {
            if (auto value = key == serverIdKey ? ServerIdOf(*theOperator)
                             : key == indexKey  ? IndexOf(*theOperator)
                                                : std::nullopt)
                return value;
        }
    }
    return std::nullopt;
}

void SetMetadataValue(EditorialMetadata& metadata, std::string_view key, std::string_view value)
{
    if (key == serverIdKey || key == indexKey)
        return SetOperatorValue(metadata, key, value);

    const auto lastDot = key.rfind('.');
    if (lastDot == std::string_view::npos)
        Refuse(key, "without a dot it belongs to no profile");
    if (OperatorProfileForm::Reserves(key.substr(0, lastDot)))
        Refuse(key, "names that begin with \"qiv.peloperator\" are reserved");

    auto profileName = FullyQualifiedName(key.substr(0, lastDot));
    auto keyWithin = std::string(key.substr(lastDot + 1));
    // A key with a dot of its own, which no reader makes, is set where it is: otherwise it would be written twice.
    for (const auto& [name, profile] : metadata)
    {
        const auto* const generic = dynamic_cast<const GenericMetadataProfile*>(profile.get());
        if (auto found = generic != nullptr ? KeyWithin(*generic, key) : std::nullopt)
        {
            profileName = name;
            keyWithin = *std::move(found);
            break;
        }
    }
    ChangeProfile<GenericMetadataProfile>(
        metadata, profileName, key, [&] { return std::make_shared<GenericMetadataProfile>(profileName); },
        [&](GenericMetadataProfile& profile) { profile.Assign(keyWithin, value); });
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Channels
