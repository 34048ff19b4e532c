#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/CompareEqualWeakPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/CompareLess.h>

#include <memory>
#include <stdexcept>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// Orders weak pointers by the objects behind them; throws as CompareEqualWeakPointer does when either has expired.
struct CompareLessWeakPointer
{
    template <typename T>
    bool operator()(const std::weak_ptr<T>& left, const std::weak_ptr<T>& right) const
    {
        const auto leftObject = left.lock();
        const auto rightObject = right.lock();
        if (leftObject == nullptr || rightObject == nullptr)
            throw std::runtime_error(CompareEqualWeakPointer::expiredText);
        return CompareLess<T>()(*leftObject, *rightObject);
    }
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
