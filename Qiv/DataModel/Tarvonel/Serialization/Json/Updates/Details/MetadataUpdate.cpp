#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/Details/MetadataUpdate.h>

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/PelOperatorMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/SameContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/OperatorProfileForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MetadataProfileDictionaryToJsonConverter.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates::Details
{

using namespace BusinessEntityModel::BaseTypes;
using Common::Serialization::Json::JsonObject;
using Common::Serialization::Json::Stringer;
using Common::Serialization::Json::Details::keyOf;
using Common::Serialization::Json::Details::ValueView;
using Json::Details::AreWrittenAlike;
using MediaIOs::Json::MetadataProfileDictionaryToJsonConverter;
using MediaIOs::Json::Details::ChannelForm;
using MediaIOs::Json::Details::OperatorProfileForm;
using Tarvonel::MediaIOs::PelOperatorMetadataProfile;

namespace
{

constexpr auto isGone = "the key is gone, and merging never removes one";

// The keys and values of a generic profile, in the order of the keys; they live as long as the profile is left alone.
using Entries = std::vector<std::pair<const std::string*, const std::string*>>;

Entries EntriesOf(const GenericMetadataProfile* profile)
{
    Entries entries;
    if (profile == nullptr)
        return entries;
    entries.reserve(static_cast<std::size_t>(profile->Size()));
    const auto append = [&entries](const std::string& key, const std::string& value)
    {
        entries.emplace_back(&key, &value);
        return true;
    };
    profile->Iterate(std::cref(append)); // a reference, since a copy of it may be allocated
    return entries;
}

const GenericMetadataProfile* AsGeneric(const MetadataProfile* profile)
{
    return dynamic_cast<const GenericMetadataProfile*>(profile);
}

const PelOperatorMetadataProfile* AsOperator(const MetadataProfile* profile)
{
    return dynamic_cast<const PelOperatorMetadataProfile*>(profile);
}

// Whether writers have nothing to write of a profile.
bool IsSilent(const MetadataProfile* profile)
{
    if (const auto* const generic = AsGeneric(profile))
        return generic->Size() == 0;
    const auto* const theOperator = AsOperator(profile);
    return theOperator == nullptr ||
           (theOperator->ServerId() == PelOperatorMetadataProfile::EmptyServerSerialNumber() &&
            theOperator->Index() < 0);
}

std::string FlatKey(const std::string& profileName, const std::string& key)
{
    return profileName + '.' + key;
}

class MetadataUpdate
{
public:
    MetadataUpdate(const EditorialMetadata& before, Update& update) : update_(update)
    {
        const auto theOperator = before.Find(OperatorProfileForm::profileName);
        isRefused_ = theOperator != nullptr && AsOperator(theOperator.get()) == nullptr;
    }

    /// The entry under one name; null for a profile that is null or absent.
    void WriteProfile(const std::string& name, const MetadataProfile* before, const MetadataProfile* after)
    {
        if (before == after || (before != nullptr && after != nullptr && before->Equals(*after)))
            return;
        if (IsSilent(before) && IsSilent(after))
            return;
        if (name == OperatorProfileForm::profileName && !isRefused_ &&
            (after == nullptr || AsOperator(after) != nullptr))
            WriteOperator(AsOperator(before), AsOperator(after));
        else if (AsOperator(before) != nullptr || AsOperator(after) != nullptr)
            Omit(name, "the profile is the operator's under another name, or takes the place of one of another kind");
        else
            WriteGeneric(name, before, AsGeneric(after));
    }

    bool HasWritten() const { return object_.has_value(); }

    /// A channel that has profiles shows metadata, also when none of the profiles has anything to show.
    void Finish(const EditorialMetadata& before, const EditorialMetadata& after)
    {
        const bool willBeEmpty = before.Empty() && !object_.has_value();
        if (willBeEmpty == after.Empty() || hasOmissions_)
            return;
        const auto profile = after.Find(OperatorProfileForm::profileName);
        if (const auto* const theOperator = AsOperator(profile.get()); theOperator != nullptr)
        {
            Open().Key(keyOf<OperatorProfileForm::index>).Value(theOperator->Index()); // no writer shows it
            return;
        }
        update_.hasChanges = true;
        update_.Omit({keyOf<ChannelForm::metadata>},
                     after.Empty() ? "the last profile is gone, and merging never removes one"
                                   : "the only profiles are without keys, for which there is no document");
    }

private:
    void WriteGeneric(const std::string& name, const MetadataProfile* before, const GenericMetadataProfile* after)
    {
        const auto* const genericBefore = AsGeneric(before);
        const auto nameBefore = genericBefore != nullptr ? genericBefore->FullyQualifiedName().Value() : name;
        const auto nameAfter = after != nullptr ? after->FullyQualifiedName().Value() : nameBefore;
        const auto* const obstacle = ObstacleOfProfile(name, nameBefore, nameAfter, before);

        // Of profiles with other names all keys differ.
        const bool isSameName = nameBefore == nameAfter;
        const auto oldEntries = EntriesOf(genericBefore);
        const auto newEntries = EntriesOf(after);
        const auto compare = [](const auto& left, const auto& right) { return *left.first < *right.first; };
        auto old = oldEntries.begin();
        for (const auto& entry : newEntries)
        {
            for (; isSameName && old != oldEntries.end() && compare(*old, entry); ++old)
                Omit(FlatKey(nameBefore, *old->first), isGone);
            const bool isKnown = isSameName && old != oldEntries.end() && *old->first == *entry.first;
            if (!isKnown || !AreWrittenAlike(*old->second, *entry.second))
                WriteEntry(nameAfter, *entry.first, *entry.second, obstacle);
            if (isKnown)
                ++old;
        }
        for (; old != oldEntries.end(); ++old)
            Omit(FlatKey(nameBefore, *old->first), isGone);
    }

    // Why no key reaches the profile that readers find or make under the name; null when one does.
    static const char* ObstacleOfProfile(const std::string& name, const std::string& nameBefore,
                                         const std::string& nameAfter, const MetadataProfile* before)
    {
        if (OperatorProfileForm::Reserves(name))
            return "names that begin with \"qiv.peloperator\" are the operator's, and no reader takes others";
        if (nameBefore != name || nameAfter != name)
            return "the profile has another name than the one that it is kept under";
        if (before != nullptr && AsGeneric(before) == nullptr)
            return "the profile takes the place of one of another kind";
        return ObstacleOfText(name);
    }

    void WriteEntry(const std::string& profileName, const std::string& key, const std::string& value,
                    const char* obstacle)
    {
        auto flatKey = FlatKey(profileName, key);
        if (obstacle == nullptr && key.find('.') != std::string::npos)
            obstacle = "the key has a dot, so that it would be read as the key of another profile";
        if (obstacle == nullptr)
            obstacle = ObstacleOfText(key);
        if (obstacle == nullptr)
            obstacle = ObstacleOfText(value);
        if (isRefused_)
            obstacle = "readers refuse all metadata, since the operator's name has a profile of another kind";
        if (obstacle != nullptr)
            return Omit(flatKey, obstacle);
        Open().Member(flatKey, value);
    }

    // A missing profile shows as little as one without server and with a negative index.
    void WriteOperator(const PelOperatorMetadataProfile* before, const PelOperatorMetadataProfile* after)
    {
        constexpr auto noServer = PelOperatorMetadataProfile::EmptyServerSerialNumber();
        const auto serverId = after != nullptr ? after->ServerId() : noServer;
        const auto index = after != nullptr ? after->Index() : -1;

        bool isReached = before != nullptr; // readers make a profile only for a key that they take, with index 0
        if (serverId != (before != nullptr ? before->ServerId() : noServer))
        {
            if (serverId == noServer)
                Omit(keyOf<OperatorProfileForm::serverId>, isGone);
            else if (!OperatorProfileForm::IsServerId(serverId))
                Omit(keyOf<OperatorProfileForm::serverId>,
                     "the server identifier is no positive multiple of 10, and readers take no other");
            else
            {
                Open().Key(keyOf<OperatorProfileForm::serverId>).Value(serverId);
                isReached = true;
            }
        }

        const bool isIndexRight =
            isReached ? std::max(index, -1) == (before != nullptr ? std::max(before->Index(), -1) : 0) : index < 0;
        if (!isIndexRight)
            Open().Key(keyOf<OperatorProfileForm::index>).Value(index);
    }

    void Omit(std::string_view key, const char* sentence)
    {
        hasOmissions_ = true;
        update_.hasChanges = true;
        update_.Omit({keyOf<ChannelForm::metadata>, key}, sentence);
    }

    Stringer& Open()
    {
        update_.hasChanges = true;
        if (!object_)
        {
            update_.stringer.Key(keyOf<ChannelForm::metadata>);
            object_.emplace(update_.stringer);
        }
        return update_.stringer;
    }

    Update& update_;
    bool hasOmissions_ = false;
    bool isRefused_ = false; // reading any metadata throws, since the operator's name has a profile of another kind
    std::optional<Stringer::InternalObjectScope> object_;
};

// Returns whether something has been written.
bool WriteDifferences(const EditorialMetadata& before, const EditorialMetadata& after, Update& update)
{
    MetadataUpdate metadata(before, update);
    auto old = before.begin();
    for (const auto& [name, profile] : after)
    {
        for (; old != before.end() && old->first < name; ++old)
            metadata.WriteProfile(old->first.Value(), old->second.get(), nullptr);
        const bool isKnown = old != before.end() && old->first == name;
        metadata.WriteProfile(name.Value(), isKnown ? old->second.get() : nullptr, profile.get());
        if (isKnown)
            ++old;
    }
    for (; old != before.end(); ++old)
        metadata.WriteProfile(old->first.Value(), old->second.get(), nullptr);
    metadata.Finish(before, after);
    return metadata.HasWritten();
}

// The member that a channel shows: the text of the metadata, or none.
std::string Shown(const EditorialMetadata& metadata)
{
    Stringer stringer;
    if (!metadata.Empty())
        static_cast<void>(MetadataProfileDictionaryToJsonConverter().To(metadata, stringer)); // never fails
    return stringer.ToString();
}

// Whether merging the update shows what `after` shows. It can although not all profiles become the same ones: a profile
// under another name than its own, or a key with a dot, may read as something that was there before.
bool IsShownAfterMerging(const EditorialMetadata& before, const EditorialMetadata& after)
{
    Stringer stringer;
    {
        const auto scope = stringer.ObjectScope();
        Update update{stringer};
        WriteDifferences(before, after, update);
    }
    JsonObject json;
    static_cast<void>(ParseText(stringer.ToString(), json)); // what has been written can be parsed
    auto merged = before.Clone();
    static_cast<void>(
        MediaIOs::Json::Details::ReadMetadata(ValueView(json).Find(keyOf<ChannelForm::metadata>), merged));
    return Shown(merged) == Shown(after);
}

} // namespace

void WriteMetadata(const EditorialMetadata& before, const EditorialMetadata& after, Update& update)
{
    if (before == after)
        return;
    const auto hadChanges = update.hasChanges;
    const auto omissionsBefore = update.omissions.size();
    const bool hasWritten = WriteDifferences(before, after, update);
    if (update.omissions.size() != omissionsBefore && IsShownAfterMerging(before, after))
    {
        update.omissions.resize(omissionsBefore);
        update.hasChanges = hadChanges || hasWritten;
    }
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates::Details
