#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMetadataProfileDictionaryConverter.h>

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToPelOperatorMetaDataConverter.h>

#include <memory>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace BusinessEntityModel::BaseTypes;
using namespace Common::Serialization::Json;
using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

namespace
{

constexpr std::string_view operatorName = "qiv.peloperator";

// Both casts throw std::bad_cast when the dictionary holds a profile of another kind under the name.

void ReadOperatorProfile(const JsonObject& json, MetadataProfileDictionary& dictionary)
{
    const JsonToPelOperatorMetaDataConverter converter;
    if (const auto existing = dictionary.Find(operatorName))
    {
        // Dropped on purpose: an existing profile keeps what could be read, also when the rest could not.
        static_cast<void>(converter.To(json, dynamic_cast<PelOperatorMetadataProfile&>(*existing)));
        return;
    }
    PelOperatorMetadataProfile profile;
    if (converter.To(json, profile))
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

JsonToMetadataProfileDictionaryConverter::~JsonToMetadataProfileDictionaryConverter() = default;

Result JsonToMetadataProfileDictionaryConverter::To(const JsonObject& json, MetadataProfileDictionary& dictionary) const
{
    if (IsEmptyObject(json))
        return {};

    ReadOperatorProfile(json, dictionary);

    // Members of one namespace mostly follow each other; then its profile is looked up once.
    std::string_view currentNamespace;
    GenericMetadataProfile* profile = nullptr;
    VisitMembers(json,
                 [&](std::string_view name, const auto& member)
                 {
                     const auto text = IfText(&*member);
                     const auto lastDot = name.rfind('.');
                     if (!text || lastDot == std::string_view::npos)
                         return;

                     const auto profileNamespace = name.substr(0, lastDot);
                     // Not only the operator's own namespace: everything that begins with its name is reserved.
                     if (profileNamespace.substr(0, operatorName.size()) == operatorName)
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

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
