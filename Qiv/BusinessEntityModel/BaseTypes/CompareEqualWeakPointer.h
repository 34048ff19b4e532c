#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/CompareEqual.h>

#include <memory>
#include <stdexcept>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// Compares weak pointers by the objects behind them.
///
/// Throws std::runtime_error with the text
/// "Qiv::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired" when either has expired.
struct CompareEqualWeakPointer
{
    template <typename T>
    bool operator()(const std::weak_ptr<T>& left, const std::weak_ptr<T>& right) const
    {
        const auto leftObject = left.lock();
        const auto rightObject = right.lock();
        if (leftObject == nullptr || rightObject == nullptr)
            throw std::runtime_error(expiredText);
        return CompareEqual<T>()(*leftObject, *rightObject);
    }

    /// The text for an expired pointer. It names one comparator and one namespace, but all weak-pointer comparators
    /// of every element type use it: the rest of the server knows the failure by it.
    static constexpr const char* expiredText =
        "Qiv::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
