#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MetadataProfileDictionaryToJsonConverter.h>

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/PelOperatorMetadataProfileToJsonConverter.h>

#include <functional>
#include <string>
#include <typeinfo>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace BusinessEntityModel::BaseTypes;
using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

namespace
{

void AppendGenericProfile(const GenericMetadataProfile& profile, Stringer& stringer)
{
    // The profile's own name, which may differ from the one that it is stored under.
    const auto name = profile.FullyQualifiedName();
    std::string path;
    path.reserve(64); // hardly any path is longer
    path.append(name.Value()).push_back('.');
    const auto prefixSize = path.size();
    const auto append = [&](const std::string& key, const std::string& value)
    {
        path.resize(prefixSize);
        path += key;
        stringer.Member(path.c_str(), value.c_str());
        return true;
    };
    profile.Iterate(std::cref(append)); // a reference, since a copy of it would be allocated
}

} // namespace

MetadataProfileDictionaryToJsonConverter::~MetadataProfileDictionaryToJsonConverter() = default;

Result MetadataProfileDictionaryToJsonConverter::To(const MetadataProfileDictionary& dictionary,
                                                    Stringer& stringer) const
{
    const auto object = stringer.ObjectScope();
    for (const auto& [name, entry] : dictionary)
    {
        const auto* const profile = entry.get();
        // The usual kind first, told by its type alone; a cast that fails is slow.
        if (profile != nullptr && typeid(*profile) == typeid(GenericMetadataProfile))
            AppendGenericProfile(static_cast<const GenericMetadataProfile&>(*profile), stringer);
        else if (const auto* operatorProfile = dynamic_cast<const PelOperatorMetadataProfile*>(profile))
            static_cast<void>(PelOperatorMetadataProfileToJsonConverter().To(*operatorProfile, stringer));
        else if (const auto* genericProfile = dynamic_cast<const GenericMetadataProfile*>(profile))
            AppendGenericProfile(*genericProfile, stringer);
    }
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
