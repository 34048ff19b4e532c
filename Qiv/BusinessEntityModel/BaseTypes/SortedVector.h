#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/CompareEqual.h>
#include <Qiv/BusinessEntityModel/BaseTypes/CompareLess.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Export.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVectorBase.h>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// A sorted vector of values.
template <typename T>
class QIV_BUSINESSENTITYMODEL_BASETYPES_EXPORT SortedVector
    : public SortedVectorBase<T, CompareLess<T>, CompareEqual<T>>
{
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
