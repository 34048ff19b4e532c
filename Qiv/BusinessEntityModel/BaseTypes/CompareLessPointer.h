#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/CompareLess.h>

#include <memory>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// Orders shared pointers by the objects they point to; null pointers come first.
struct CompareLessPointer
{
    template <typename T>
    bool operator()(const std::shared_ptr<T>& left, const std::shared_ptr<T>& right) const
    {
        if (left == nullptr || right == nullptr)
            return left == nullptr && right != nullptr;
        return CompareLess<T>()(*left, *right);
    }
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
