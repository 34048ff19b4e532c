#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace Qiv::Common::Serialization::Json
{

/// Tells which key of a small set a text may be: by its length and its first and last character, which have a place of
/// their own for each key of the set. Other texts share these places, so the key there is still to be compared.
///
/// Neither a loop nor an order depends on the text, so that a walk over keys of many lengths mispredicts few branches.
class KeyTable
{
public:
    /// The keys must outlive the table. Fails to compile as a constant when it finds no places without a
    /// collision: when two keys are alike in all three, and by chance for more than some 28 keys.
    template <std::size_t count>
    constexpr explicit KeyTable(const std::array<std::string_view, count>& keys) : keys_(keys.data())
    {
        static_assert(count <= placeCount);
        while (!Place(count))
            if (++weights_ == placeCount * placeCount)
                throw std::invalid_argument("no places without a collision for these keys");
    }

    /// The only key that can be equal to `text`.
    std::size_t Candidate(std::string_view text) const noexcept { return text.empty() ? 0 : places_[PlaceOf(text)]; }
    std::string_view Key(std::size_t index) const noexcept { return keys_[index]; }

private:
    static constexpr std::size_t placeCount = 64;

    constexpr std::size_t PlaceOf(std::string_view text) const noexcept
    {
        return (text.size() + static_cast<unsigned char>(text.front()) * (weights_ / placeCount) +
                static_cast<unsigned char>(text.back()) * (weights_ % placeCount)) %
               placeCount;
    }

    // Puts the keys in their places; false when two of them meet.
    constexpr bool Place(std::size_t count)
    {
        std::array<bool, placeCount> taken{};
        for (std::size_t i = 0; i < count; ++i)
        {
            const auto place = PlaceOf(keys_[i]);
            if (taken[place])
                return false;
            taken[place] = true;
            places_[place] = static_cast<std::uint8_t>(i);
        }
        return true;
    }

    const std::string_view* keys_;
    std::size_t weights_ = 0; // of the first character and of the last one
    std::array<std::uint8_t, placeCount> places_{};
};

} // namespace Qiv::Common::Serialization::Json
