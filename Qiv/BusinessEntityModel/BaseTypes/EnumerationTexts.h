#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

/// The one mechanism behind the texts of all enumerations of the model.
///
/// The source of an enumeration lists each enumerator with its text once, in the order of the values from 0 on:
///
///     constexpr EnumerationText<Colour> texts[] = {{Colour::Red, "Red"}, {Colour::Blue, "Blue"}};
///
///     const std::string& ToString(Colour value) { return TextOf<texts>(value); }
///     bool FromText(std::string_view text, Colour& value) noexcept
///     {
///         return FindEnumerator(texts, text, Colour::Red, value);
///     }
///
/// Callers then have ToString(colour), FromText(text, colour), and To<Colour>(text).
namespace Qiv::BusinessEntityModel::BaseTypes
{

/// The text of a value that is none of the enumerators.
constexpr std::string_view unknownEnumeratorText = "Unknown";

template <typename Enumeration>
struct EnumerationText
{
    Enumeration value;
    std::string_view text;
};

/// The text of `value` in the table `texts`; "Unknown" when the table does not have it.
///
/// The returned text lives until the very end of the process. Only the first call for a table allocates; several
/// threads may call at once.
template <const auto& texts, typename Enumeration>
const std::string& TextOf(Enumeration value)
{
    constexpr std::size_t count = std::size(texts);
    static_assert(
        []
        {
            for (std::size_t i = 0; i < count; ++i)
            {
                if (static_cast<std::size_t>(texts[i].value) != i)
                    return false;
            }
            return true;
        }(),
        "the enumerators are listed in the order of their values, without gaps from 0 on");

    // Never destroyed, so that objects with static storage can be converted while the process ends.
    static const auto& strings = *new std::array<std::string, count + 1>(
        []
        {
            std::array<std::string, count + 1> result;
            std::transform(std::begin(texts), std::end(texts), result.begin(),
                           [](const auto& entry) { return entry.text; });
            result[count] = unknownEnumeratorText;
            return result;
        }());
    return strings[std::min<std::size_t>(static_cast<std::uint32_t>(value), count)];
}

/// Sets `value` to the enumerator whose text is exactly `text`; when there is none, sets `fallback` and returns false.
template <typename Enumeration, std::size_t count>
bool FindEnumerator(const EnumerationText<Enumeration> (&texts)[count], std::string_view text, Enumeration fallback,
                    Enumeration& value) noexcept
{
    for (const auto& entry : texts)
    {
        if (entry.text == text)
        {
            value = entry.value;
            return true;
        }
    }
    value = fallback;
    return false;
}

/// The enumerator of `Enumeration` whose text is `text`, or the enumeration's default for unknown text; for example
/// To<RecordingStatus>("Pause"). The namespaces of the enumerations offer it under this name too.
template <typename Enumeration>
Enumeration To(std::string_view text) noexcept
{
    Enumeration value{};
    static_cast<void>(FromText(text, value)); // an unknown text has set the default
    return value;
}

} // namespace Qiv::BusinessEntityModel::BaseTypes
