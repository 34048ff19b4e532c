#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/CompareEqual.h>

#include <memory>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// Compares shared pointers by the objects they point to; a null pointer equals only another null pointer.
struct CompareEqualPointer
{
    template <typename T>
    bool operator()(const std::shared_ptr<T>& left, const std::shared_ptr<T>& right) const
    {
        if (left == nullptr || right == nullptr)
            return left == right;
        return CompareEqual<T>()(*left, *right);
    }
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
