#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/SharedReference.h>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// The order of the elements of a sorted vector: operator< of `T`.
template <typename T>
struct CompareLess
{
    bool operator()(const T& left, const T& right) const { return left < right; }
};

/// References are ordered by their identifiers, whatever object they hold.
template <typename T>
struct CompareLess<SharedReference<T>>
{
    bool operator()(const SharedReference<T>& left, const SharedReference<T>& right) const
    {
        return left.Id() < right.Id();
    }
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
