#pragma once

#include <cstddef>
#include <cstdint>

namespace Qiv::TimePoints::Details
{

/// Mixes 64 bits into a hash so that all of them matter, also where `std::size_t` has 32.
inline std::size_t Hash(std::int64_t value, std::size_t seed = 0) noexcept
{
    std::uint64_t mixed = static_cast<std::uint64_t>(value) + 0x9E3779B97F4A7C15U * (std::uint64_t{seed} + 1);
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return static_cast<std::size_t>(mixed ^ (mixed >> 31));
}

} // namespace Qiv::TimePoints::Details
