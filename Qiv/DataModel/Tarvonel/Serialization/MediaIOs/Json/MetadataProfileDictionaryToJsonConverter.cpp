#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MetadataProfileDictionaryToJsonConverter.h>

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/PelOperatorMetadataProfileToJsonConverter.h>

#include <string>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace BusinessEntityModel::BaseTypes;
using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

MetadataProfileDictionaryToJsonConverter::~MetadataProfileDictionaryToJsonConverter() = default;

Result MetadataProfileDictionaryToJsonConverter::To(const MetadataProfileDictionary& dictionary,
                                                    Stringer& stringer) const
{
    stringer.Object();
    for (const auto& [name, entry] : dictionary)
    {
        if (const auto* operatorProfile = dynamic_cast<const PelOperatorMetadataProfile*>(entry.get()))
        {
            static_cast<void>(PelOperatorMetadataProfileToJsonConverter().To(*operatorProfile, stringer));
        }
        else if (const auto* profile = dynamic_cast<const GenericMetadataProfile*>(entry.get()))
        {
            // The profile's own name, which may differ from the one that it is stored under.
            auto path = profile->FullyQualifiedName().Value() + ".";
            const auto prefixSize = path.size();
            profile->Iterate(
                [&](const std::string& key, const std::string& value)
                {
                    path.resize(prefixSize);
                    path += key;
                    stringer.Member(path.c_str(), value.c_str());
                    return true;
                });
        }
    }
    stringer.CloseObject();
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
