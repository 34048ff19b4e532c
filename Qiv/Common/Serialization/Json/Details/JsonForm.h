#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonType.h>
#include <Qiv/Common/Serialization/Json/QuotedKey.h>

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>

/// The form of a JSON object: its members by name, each with its key and its JSON type. Every object that is read or
/// written has one form, in which its keys stand and nowhere else:
///
///     struct SpeedForm : JsonForm<SpeedForm>
///     {
///         static constexpr std::string_view tag = "Speed";
///         static constexpr Member numerator{"numerator", JsonType::Integer};
///         static constexpr Member denominator{"denominator", JsonType::Integer};
///         static constexpr auto members = ListOf(type, numerator, denominator);
///     };
///
/// Readers then ask `KnownMembers<SpeedForm>` for `Get<SpeedForm::numerator>()`, writers write under
/// `keyOf<SpeedForm::numerator>`, and the inspection's tables name the members. A member that is missing from the list
/// can neither be read nor written: it does not compile.
namespace Qiv::Common::Serialization::Json::Details
{

/// A member of the objects of a form.
template <typename TForm>
struct FormMember
{
    std::string_view key;
    JsonType type;
};

/// The members of a form, or some of them.
template <typename TForm, std::size_t count>
using FormMembers = std::array<const FormMember<TForm>*, count>;

/// The key of the member that tells the kind of an object.
inline constexpr std::string_view typeKey = "_type";

/// The base of a form.
template <typename TForm>
struct JsonForm
{
    using Member = FormMember<TForm>;

    static constexpr Member type{typeKey, JsonType::Text};

    /// Fails to compile when two members have one key.
    template <typename... Members>
    static constexpr auto ListOf(const Members&... members)
    {
        return Checked(FormMembers<TForm, sizeof...(members)>{&members...});
    }

    /// The members of several lists.
    template <std::size_t... counts>
    static constexpr auto Joined(const FormMembers<TForm, counts>&... lists)
    {
        FormMembers<TForm, (counts + ...)> joined{};
        std::size_t size = 0;
        const auto append = [&](const auto& list)
        {
            for (const auto* const member : list)
                joined[size++] = member;
        };
        (append(lists), ...);
        return Checked(joined);
    }

private:
    template <std::size_t count>
    static constexpr FormMembers<TForm, count> Checked(const FormMembers<TForm, count>& members)
    {
        for (std::size_t i = 0; i < count; ++i)
            for (std::size_t j = 0; j < i; ++j)
                if (members[i]->key == members[j]->key)
                    throw std::invalid_argument("two members of a form have one key");
        return members;
    }
};

/// The place of a member in the list of its form.
template <typename TForm>
constexpr std::size_t IndexOf(const FormMember<TForm>& member)
{
    for (std::size_t i = 0; i < TForm::members.size(); ++i)
        if (TForm::members[i] == &member)
            return i;
    throw std::invalid_argument("the list of the form does not have this member");
}

template <typename TForm>
constexpr std::string_view ListedKey(const FormMember<TForm>& member)
{
    return TForm::members[IndexOf(member)]->key;
}

/// The key of a member, for example keyOf<SpeedForm::numerator>.
template <const auto& member>
inline constexpr QuotedKey keyOf{ListedKey(member)};

template <typename TForm>
constexpr auto ListedKeys()
{
    std::array<std::string_view, TForm::members.size()> keys{};
    for (std::size_t i = 0; i < keys.size(); ++i)
        keys[i] = TForm::members[i]->key;
    return keys;
}

/// The keys of a form in the order of its list.
template <typename TForm>
inline constexpr auto keysOf = ListedKeys<TForm>();

} // namespace Qiv::Common::Serialization::Json::Details
