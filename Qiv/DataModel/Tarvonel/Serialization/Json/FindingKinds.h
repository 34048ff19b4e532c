#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Json/FindingKind.h>

#include <initializer_list>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// A set of kinds of finding, by default an empty one.
class FindingKinds
{
public:
    constexpr FindingKinds() noexcept = default;
    constexpr FindingKinds(FindingKind kind) noexcept : bits_(Bit(kind)) {}
    constexpr FindingKinds(std::initializer_list<FindingKind> kinds) noexcept
    {
        for (const auto kind : kinds)
            bits_ |= Bit(kind);
    }

    /// Every kind: of a document in which none of them is found, nothing is lost when it is read. Written again, it
    /// loses only the times of time codes without date, and bytes that are no UTF-8.
    static constexpr FindingKinds All() noexcept
    {
        FindingKinds all;
        all.bits_ = ~0U;
        return all;
    }

    constexpr FindingKinds operator|(FindingKinds other) const noexcept
    {
        other.bits_ |= bits_;
        return other;
    }

    constexpr bool IsEmpty() const noexcept { return bits_ == 0; }
    constexpr bool Contains(FindingKind kind) const noexcept { return (bits_ & Bit(kind)) != 0; }

private:
    static constexpr unsigned Bit(FindingKind kind) noexcept { return 1U << static_cast<unsigned>(kind); }

    unsigned bits_ = 0;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
