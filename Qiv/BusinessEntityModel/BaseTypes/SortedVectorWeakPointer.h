#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/CompareEqualWeakPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/CompareLessWeakPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Export.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVectorBase.h>

#include <memory>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// A sorted vector of weak pointers, ordered by the objects behind them; comparing with an expired one throws.
template <typename T>
class QIV_BUSINESSENTITYMODEL_BASETYPES_EXPORT SortedVectorWeakPointer
    : public SortedVectorBase<std::weak_ptr<T>, CompareLessWeakPointer, CompareEqualWeakPointer>
{
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
