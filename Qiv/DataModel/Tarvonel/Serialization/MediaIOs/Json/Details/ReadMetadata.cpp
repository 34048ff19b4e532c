#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/OperatorProfileForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

#include <memory>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using namespace BusinessEntityModel::BaseTypes;
using Common::Serialization::Json::Details::keyOf;
using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

namespace
{

// Both casts throw std::bad_cast when the dictionary holds a profile of another kind under the name.

void ReadOperatorProfileInto(MetadataProfileDictionary& dictionary, ValueView json)
{
    if (const auto existing = dictionary.Find(OperatorProfileForm::profileName))
    {
        // Dropped on purpose: an existing profile keeps what could be read, also when the rest could not.
        static_cast<void>(ReadOperatorProfile(json, dynamic_cast<PelOperatorMetadataProfile&>(*existing)));
        return;
    }
    PelOperatorMetadataProfile profile;
    if (ReadOperatorProfile(json, profile))
        dictionary.Set(std::make_shared<PelOperatorMetadataProfile>(profile));
}

GenericMetadataProfile& GenericProfile(std::string_view name, MetadataProfileDictionary& dictionary)
{
    if (const auto existing = dictionary.Find(name))
        return dynamic_cast<GenericMetadataProfile&>(*existing);
    const auto created = std::make_shared<GenericMetadataProfile>(FullyQualifiedName(name));
    dictionary.Set(created);
    return *created;
}

} // namespace

Result ReadMetadata(ValueView json, MetadataProfileDictionary& dictionary)
{
    if (json.IsEmptyObject())
        return {};

    ReadOperatorProfileInto(dictionary, json);

    // Members of one namespace mostly follow each other; then its profile is looked up once.
    std::string_view currentNamespace;
    GenericMetadataProfile* profile = nullptr;
    json.VisitMembers(
        [&](std::string_view name, ValueView member)
        {
            const auto text = member.Text();
            const auto lastDot = name.rfind('.');
            if (!text || lastDot == std::string_view::npos)
                return;

            const auto profileNamespace = name.substr(0, lastDot);
            if (OperatorProfileForm::Reserves(profileNamespace))
                return;

            if (profile == nullptr || profileNamespace != currentNamespace)
            {
                profile = &GenericProfile(profileNamespace, dictionary);
                currentNamespace = profileNamespace;
            }
            profile->Assign(name.substr(lastDot + 1), *text);
        });
    return {};
}

Result ReadOperatorProfile(ValueView json, PelOperatorMetadataProfile& profile)
{
    using Form = OperatorProfileForm;

    // Two look-ups rather than a walk: the object may hold any number of members of other profiles.
    const auto serverId = json.Find(keyOf<Form::serverId>).Int32();
    const bool hasServerId = serverId && Form::IsServerId(*serverId);
    if (hasServerId)
        profile.ServerId(*serverId);

    const auto index = json.Find(keyOf<Form::index>).Int32();
    if (index)
        profile.Index(*index);

    return hasServerId || index ? Result() : Result(Form::emptyMessage);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
