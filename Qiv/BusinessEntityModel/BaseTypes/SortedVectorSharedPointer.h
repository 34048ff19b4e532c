#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/CompareEqualPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/CompareLessPointer.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Export.h>
#include <Qiv/BusinessEntityModel/BaseTypes/SortedVectorBase.h>

#include <memory>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// A sorted vector of shared pointers, ordered by the objects they point to.
template <typename T>
class QIV_BUSINESSENTITYMODEL_BASETYPES_EXPORT SortedVectorSharedPointer
    : public SortedVectorBase<std::shared_ptr<T>, CompareLessPointer, CompareEqualPointer>
{
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
