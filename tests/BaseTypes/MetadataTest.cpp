#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>

#include "ThrownText.h"

#include <gtest/gtest.h>

namespace Qiv::BusinessEntityModel::BaseTypes
{
namespace
{

using Name = FullyQualifiedName;

std::shared_ptr<GenericMetadataProfile> MakeProfile(const std::string& name,
                                                    const GenericMetadataProfile::Dictionary& values)
{
    auto profile = std::make_shared<GenericMetadataProfile>(Name(name));
    for (const auto& [key, value] : values)
        profile->Set(key, value);
    return profile;
}

/// Takes any name, as a profile of another library might.
struct ForeignProfile : MetadataProfile
{
    explicit ForeignProfile(const std::string& claimed) : name(claimed) {}
    Name FullyQualifiedName() const override { return name; }
    bool Equals(const MetadataProfile&) const override { return true; }
    std::shared_ptr<MetadataProfile> Clone() const override { return std::make_shared<ForeignProfile>(*this); }
    Name name;
};

TEST(GenericMetadataProfile, IsEqualByNameAndContent)
{
    const auto profile = MakeProfile("a.b", {{"k", "v"}, {"l", "w"}});
    const auto reversed = std::make_shared<GenericMetadataProfile>(Name("a.b"));
    (*reversed)["l"] = "w";
    (*reversed)["k"] = "v";
    EXPECT_TRUE(*profile == *reversed);
    const std::shared_ptr<MetadataProfile> others[] = {
        MakeProfile("a.c", {{"k", "v"}, {"l", "w"}}), MakeProfile("a.b", {{"k", "v"}}),
        MakeProfile("a.b", {{"k", "v"}, {"l", "W"}}), MakeProfile("a.b", {{"k", "v"}, {"L", "w"}}),
        std::make_shared<ForeignProfile>("a.b"),      std::make_shared<ForeignProfile>("x"),
    };
    for (const auto& other : others)
        EXPECT_FALSE(*profile == *other) << &other - others;
    EXPECT_EQ(profile->ToString(), "a.b");
}

TEST(GenericMetadataProfile, AssignsWhatItSets)
{
    GenericMetadataProfile set, assigned;
    GenericMetadataProfile::Dictionary expected;
    const std::pair<std::string, std::string> rows[] = {
        {"b", "1"}, {"c", "2"}, {"a", "3"}, {"b", "4"}, {"c", "longer than what a string holds in itself"}, {"", "5"}};
    for (const auto& [key, value] : rows)
    {
        set.Set(key, value);
        assigned.Assign(key, value);
        expected[key] = value;
        EXPECT_TRUE(set == *MakeProfile("", expected)) << key;
        EXPECT_TRUE(assigned == set) << key;
    }
    assigned.Assign("c", std::string_view(assigned["c"]).substr(7)); // a part of the value that it replaces
    EXPECT_EQ(assigned.Get("c"), "than what a string holds in itself");
}

TEST(GenericMetadataProfile, VisitsPairsInKeyOrderUntilToldToStop)
{
    const auto profile = MakeProfile("n", {{"b", "2"}, {"a", "1"}, {"\xC3", "4"}, {"c", "3"}});
    const auto& constant = *profile;
    const std::pair<std::string, std::string> rows[] = {
        {"", "a1b2c3\xC3\x34"}, {"a", "a1"}, {"\xC3", "a1b2c3\xC3\x34"}};
    for (const auto& [last, expected] : rows)
    {
        std::string seen;
        const auto visit = [&, end = last](const std::string& key, const std::string& value)
        {
            seen += key + value;
            return key != end;
        };
        EXPECT_EQ(constant.Iterate(visit), last.empty());
        EXPECT_EQ(seen, expected);
    }
    EXPECT_TRUE(profile->Iterate([](const std::string& key, std::string& value) { return (value += key, true); }));
    EXPECT_EQ(profile->Values(), (std::vector<std::string>{"1a", "2b", "3c", "4\xC3"}));

    const auto clone = profile->Clone();
    EXPECT_TRUE(profile->Erase("a"));
    EXPECT_FALSE(profile->Contains("a"));
    EXPECT_FALSE(profile->Erase("a"));
    EXPECT_TRUE(profile->Contains("b"));
    EXPECT_EQ(profile->Size(), 3);
    const std::function<bool(const std::string&, const std::string&)> none;
    EXPECT_THROW(constant.Iterate(none), std::bad_function_call);
    profile->Clear();
    EXPECT_TRUE(constant.Iterate(none));
    EXPECT_TRUE(constant == GenericMetadataProfile(Name("n")));
    EXPECT_EQ(dynamic_cast<GenericMetadataProfile&>(*clone).Get("a"), "1a");
}

TEST(MetadataProfileDictionary, SharesProfilesWithCopiesButNotWithClones)
{
    MetadataProfileDictionary dictionary;
    const auto profile = MakeProfile("b", {{"k", "v"}});
    dictionary.Set(profile);
    dictionary.Set(MakeProfile("a", {}));
    dictionary.Set(Name("null"), nullptr);
    const auto copy = dictionary;
    const auto clone = dictionary.Clone();
    MetadataProfileDictionary deepCopy;
    deepCopy.Set(MakeProfile("gone", {}));
    deepCopy.DeepCopy(dictionary);
    EXPECT_TRUE(dictionary == copy);
    EXPECT_TRUE(dictionary == clone);
    EXPECT_TRUE(dictionary == deepCopy);
    EXPECT_EQ(deepCopy.Keys(), (std::vector<Name>{Name("a"), Name("b"), Name("null")}));

    profile->Set("k", "changed");
    EXPECT_TRUE(dictionary == copy);
    EXPECT_TRUE(dictionary != clone);
    EXPECT_TRUE(dictionary != deepCopy);
    deepCopy.DeepCopy(deepCopy);
    EXPECT_TRUE(deepCopy == clone);

    deepCopy.Set(Name("null"), MakeProfile("null", {}));
    EXPECT_TRUE(deepCopy != clone);
    EXPECT_TRUE(clone != deepCopy);
    deepCopy.Erase(Name("a"));
    deepCopy.Set(MakeProfile("other", {}));
    EXPECT_TRUE(deepCopy != clone);
}

TEST(MetadataProfileDictionary, FindsStoresAndErasesByName)
{
    MetadataProfileDictionary dictionary;
    const auto first = MakeProfile("a", {}), second = MakeProfile("a", {{"k", "v"}});
    dictionary.Set(first);
    dictionary.Set(second);
    dictionary.Set(Name("null"), nullptr);
    EXPECT_EQ(&dictionary.At(Name("a")), second.get());
    EXPECT_EQ(dictionary.Find("a"), second);
    EXPECT_TRUE(dictionary.Contains(Name("null")));
    EXPECT_EQ(dictionary.Values(), (std::vector<std::shared_ptr<MetadataProfile>>{second, nullptr}));
    for (const auto& name : {Name("absent"), Name("null")})
    {
        EXPECT_EQ(dictionary.Find(name.Value()), nullptr);
        EXPECT_EQ(ThrownText<std::out_of_range>([&] { dictionary.At(name); }), "map::at");
        EXPECT_EQ(ThrownText<std::out_of_range>([&] { dictionary[name]; }), "map::at");
    }
    EXPECT_THROW(dictionary.Set(nullptr), std::invalid_argument);
    EXPECT_FALSE(dictionary.Erase(Name("absent")));
    EXPECT_FALSE(dictionary.Erase(std::shared_ptr<MetadataProfile>()));
    EXPECT_TRUE(dictionary.Erase(first)); // by its name
    EXPECT_TRUE(dictionary.Erase(Name("null")));
    EXPECT_TRUE(dictionary.Empty());
}

} // namespace
} // namespace Qiv::BusinessEntityModel::BaseTypes
