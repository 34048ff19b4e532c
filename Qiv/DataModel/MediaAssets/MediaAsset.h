#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Utf8String.h>
#include <Qiv/DataModel/MediaAssets/Export.h>
#include <Qiv/TimePoints/TimePoint.h>

#include <utility>

namespace Qiv::DataModel::MediaAssets
{

/// A recorded media asset, such as a clip, with what a channel shows of the one on air.
class QIV_DATAMODEL_MEDIAASSETS_EXPORT MediaAsset
{
public:
    const BusinessEntityModel::BaseTypes::Identifier& Id() const noexcept { return id_; }
    void Id(const BusinessEntityModel::BaseTypes::Identifier& id) { id_ = id; }
    void Id(BusinessEntityModel::BaseTypes::Identifier&& id) { id_ = std::move(id); }

    /// The display name; empty when unknown.
    const BusinessEntityModel::BaseTypes::Utf8String& Name() const noexcept { return name_; }
    void Name(const BusinessEntityModel::BaseTypes::Utf8String& name) { name_ = name; }
    void Name(BusinessEntityModel::BaseTypes::Utf8String&& name) { name_ = std::move(name); }

    /// The first time point of the asset; empty when unknown.
    const TimePoints::TimePoint& InPoint() const noexcept { return inPoint_; }
    void InPoint(const TimePoints::TimePoint& inPoint) { inPoint_ = inPoint; }

    /// The time point at which the asset ends; empty when unknown.
    const TimePoints::TimePoint& OutPoint() const noexcept { return outPoint_; }
    void OutPoint(const TimePoints::TimePoint& outPoint) { outPoint_ = outPoint; }

    bool operator==(const MediaAsset& other) const noexcept;
    bool operator!=(const MediaAsset& other) const noexcept { return !(*this == other); }

private:
    BusinessEntityModel::BaseTypes::Identifier id_;
    BusinessEntityModel::BaseTypes::Utf8String name_;
    TimePoints::TimePoint inPoint_;
    TimePoints::TimePoint outPoint_;
};

} // namespace Qiv::DataModel::MediaAssets
