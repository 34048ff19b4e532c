#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// The equality of the elements of a sorted vector: operator== of `T`.
template <typename T>
struct CompareEqual
{
    bool operator()(const T& left, const T& right) const { return left == right; }
};

/// References are equal when their identifiers are, whatever object they hold.
template <typename T>
struct CompareEqual<SharedReference<T>>
{
    bool operator()(const SharedReference<T>& left, const SharedReference<T>& right) const
    {
        return left.Id() == right.Id();
    }
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
