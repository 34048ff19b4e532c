#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace Qiv::Common::Serialization::Json::Details
{

/// Finds a text in a small set of keys. The text's length and its first and last character lead to the only key that
/// can be equal to it, since no two keys of the set share the place that these have in the table.
///
/// So a text is compared with one key at most, without a search, however many keys there are.
class KeyTable
{
public:
    static constexpr std::size_t notFound = SIZE_MAX;

    /// The keys must outlive the table. Fails to compile as a constant when a key is empty, and when it finds no
    /// places without a collision: when two keys are alike in all three, and by chance for more than some 28 keys.
    template <std::size_t count>
    constexpr explicit KeyTable(const std::array<std::string_view, count>& keys) : keys_(keys.data())
    {
        static_assert(count <= placeCount);
        while (!Place(count))
            if (++lastWeight_ == placeCount)
            {
                lastWeight_ = 0;
                if (++firstWeight_ == placeCount)
                    throw std::invalid_argument("no places without a collision for these keys");
            }
    }

    /// The index of the key that is equal to `text`, or `notFound`.
    std::size_t Find(std::string_view text) const noexcept
    {
        if (text.empty())
            return notFound;
        const std::size_t index = places_[PlaceOf(text)];
        const auto key = keys_[index];
        return key.size() == text.size() && AreEqual(key.data(), text.data(), key.size()) ? index : notFound;
    }

    std::string_view KeyAt(std::size_t index) const noexcept { return keys_[index]; }

private:
    static constexpr std::size_t placeCount = 64;

    constexpr std::size_t PlaceOf(std::string_view text) const noexcept
    {
        return (text.size() + static_cast<unsigned char>(text.front()) * firstWeight_ +
                static_cast<unsigned char>(text.back()) * lastWeight_) %
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

    template <typename Word>
    static bool AreEqualAt(const char* left, const char* right, std::size_t offset) noexcept
    {
        Word leftWord;
        Word rightWord;
        std::memcpy(&leftWord, left + offset, sizeof(Word));
        std::memcpy(&rightWord, right + offset, sizeof(Word));
        return leftWord == rightWord;
    }

    // Whether a key and a text of its size are equal; the last word overlaps the one before. With `==` a recorder takes
    // 1.8 % more instructions to read (2.8 % with -m32).
    static bool AreEqual(const char* left, const char* right, std::size_t size) noexcept
    {
        using Short = std::uint32_t;
        using Long = std::uint64_t;
        if (size < sizeof(Short))
            return left[0] == right[0] && left[size / 2] == right[size / 2] && left[size - 1] == right[size - 1];
        if (size < sizeof(Long))
            return AreEqualAt<Short>(left, right, 0) && AreEqualAt<Short>(left, right, size - sizeof(Short));
        for (std::size_t offset = 0; offset < size - sizeof(Long); offset += sizeof(Long))
            if (!AreEqualAt<Long>(left, right, offset))
                return false;
        return AreEqualAt<Long>(left, right, size - sizeof(Long));
    }

    const std::string_view* keys_;
    std::size_t firstWeight_ = 0;
    std::size_t lastWeight_ = 0;
    std::array<std::uint8_t, placeCount> places_{};
};

} // namespace Qiv::Common::Serialization::Json::Details
