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
#include <string>
#include <string_view>
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

/// A key of the metadata and what it gets: a text, which lives as long as its profile is left alone, or a number.
struct Member
{
    std::string key;
    const std::string* text;
    std::int32_t number;
};

/// What differs: the members that an update has, and what it cannot have.
class Difference
{
public:
    Difference(const EditorialMetadata& before, const EditorialMetadata& after, Update& update) : update_(update)
    {
        const auto theOperator = before.Find(OperatorProfileForm::profileName);
        isRefused_ = theOperator != nullptr && AsOperator(theOperator.get()) == nullptr;

        members_.reserve(8); // growing on the way would cost an update of eight keys 5 %
        auto old = before.begin();
        for (const auto& [name, profile] : after)
        {
            for (; old != before.end() && old->first < name; ++old)
                CompareProfile(old->first.Value(), old->second.get(), nullptr);
            const bool isKnown = old != before.end() && old->first == name;
            CompareProfile(name.Value(), isKnown ? old->second.get() : nullptr, profile.get());
            if (isKnown)
                ++old;
        }
        for (; old != before.end(); ++old)
            CompareProfile(old->first.Value(), old->second.get(), nullptr);
        CompareEmptiness(before, after);
    }

    const std::vector<Member>& Members() const { return members_; }
    bool HasOmissions() const { return hasOmissions_; }

private:
    // The entry under one name; null for a profile that is null or absent.
    void CompareProfile(const std::string& name, const MetadataProfile* before, const MetadataProfile* after)
    {
        if (before == after || (before != nullptr && after != nullptr && before->Equals(*after)))
            return;
        if (IsSilent(before) && IsSilent(after))
            return;
        if (name == OperatorProfileForm::profileName && !isRefused_ &&
            (after == nullptr || AsOperator(after) != nullptr))
            CompareOperator(AsOperator(before), AsOperator(after));
        else if (AsOperator(before) != nullptr || AsOperator(after) != nullptr)
            Omit(name, "the profile is the operator's under another name, or takes the place of one of another kind");
        else
            CompareGeneric(name, before, AsGeneric(after));
    }

    // A channel that has profiles shows metadata, also when none of the profiles has anything to show.
    void CompareEmptiness(const EditorialMetadata& before, const EditorialMetadata& after)
    {
        const bool willBeEmpty = before.Empty() && members_.empty();
        if (willBeEmpty == after.Empty() || hasOmissions_)
            return;
        if (after.Empty())
            return Omit("the last profile is gone, and merging never removes one");
        const auto profile = after.Find(OperatorProfileForm::profileName);
        if (const auto* const theOperator = AsOperator(profile.get()); theOperator != nullptr)
            AddNumber(keyOf<OperatorProfileForm::index>, theOperator->Index()); // no writer shows it
        else
            Omit("the only profiles are without keys, for which there is no document");
    }

    void CompareGeneric(const std::string& name, const MetadataProfile* before, const GenericMetadataProfile* after)
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
                AddText(nameAfter, *entry.first, *entry.second, obstacle);
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

    void AddNumber(std::string_view key, std::int32_t number)
    {
        members_.push_back({std::string(key), nullptr, number});
    }

    void AddText(const std::string& profileName, const std::string& key, const std::string& value, const char* obstacle)
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
        members_.push_back({std::move(flatKey), &value, 0});
    }

    // A missing profile shows as little as one without server and with a negative index.
    void CompareOperator(const PelOperatorMetadataProfile* before, const PelOperatorMetadataProfile* after)
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
                AddNumber(keyOf<OperatorProfileForm::serverId>, serverId);
                isReached = true;
            }
        }

        const bool isIndexRight =
            isReached ? std::max(index, -1) == (before != nullptr ? std::max(before->Index(), -1) : 0) : index < 0;
        if (!isIndexRight)
            AddNumber(keyOf<OperatorProfileForm::index>, index);
    }

    void Omit(std::string_view key, const char* sentence)
    {
        hasOmissions_ = true;
        update_.Omit({keyOf<ChannelForm::metadata>, key}, sentence);
    }
    void Omit(const char* sentence)
    {
        hasOmissions_ = true;
        update_.Omit({keyOf<ChannelForm::metadata>}, sentence);
    }

    Update& update_;
    std::vector<Member> members_;
    bool hasOmissions_ = false;
    bool isRefused_ = false; // reading any metadata throws, since the operator's name has a profile of another kind
};

void Write(const std::vector<Member>& members, Stringer& stringer)
{
    const auto scope = stringer.ObjectScope();
    for (const auto& member : members)
        if (member.text != nullptr)
            stringer.Member(member.key, *member.text);
        else
            stringer.Key(member.key).Value(member.number);
}

// The member that a channel shows: the text of the metadata, or none.
std::string Shown(const EditorialMetadata& metadata)
{
    Stringer stringer;
    if (!metadata.Empty())
        static_cast<void>(MetadataProfileDictionaryToJsonConverter().To(metadata, stringer)); // never fails
    return stringer.ToString();
}

EditorialMetadata Merged(const EditorialMetadata& before, const std::vector<Member>& members)
{
    Stringer stringer;
    Write(members, stringer);
    JsonObject json;
    static_cast<void>(ParseText(stringer.ToString(), json)); // what has been written can be parsed
    auto merged = before.Clone();
    static_cast<void>(MediaIOs::Json::Details::ReadMetadata(ValueView(json), merged));
    return merged;
}

} // namespace

void WriteMetadata(const EditorialMetadata& before, const EditorialMetadata& after, Update& update)
{
    if (before == after)
        return;
    const auto omissionsBefore = update.omissions.size();
    const Difference difference(before, after, update);
    if (difference.HasOmissions())
    {
        // Other profiles can show the same, before merging or behind it: one under another name than its own, or with a
        // key that has a dot or a NUL, may read as something that was there before.
        const auto shown = Shown(after);
        const bool isShown = Shown(before) == shown;
        if (isShown || Shown(Merged(before, difference.Members())) == shown)
            update.omissions.resize(omissionsBefore);
        if (isShown)
            return;
    }
    if (!difference.Members().empty())
    {
        update.stringer.Key(keyOf<ChannelForm::metadata>);
        Write(difference.Members(), update.stringer);
    }
    update.hasChanges |= !difference.Members().empty() || update.omissions.size() != omissionsBefore;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates::Details
