#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/BusinessEntityModel/BaseTypes/Utf8String.h>
#include <Qiv/BusinessEntityModel/Edits/Export.h>

#include <utility>

namespace Qiv::BusinessEntityModel::Edits
{

/// An edited sequence, as far as a channel that plays it shows it.
class QIV_BUSINESSENTITYMODEL_EDITS_EXPORT Sequence
{
public:
    const BaseTypes::Identifier& Id() const noexcept { return id_; }
    void Id(const BaseTypes::Identifier& id) { id_ = id; }
    void Id(BaseTypes::Identifier&& id) { id_ = std::move(id); }

    /// The display name; empty when unknown.
    const BaseTypes::Utf8String& Name() const noexcept { return name_; }
    void Name(const BaseTypes::Utf8String& name) { name_ = name; }
    void Name(BaseTypes::Utf8String&& name) { name_ = std::move(name); }

    bool operator==(const Sequence& other) const noexcept;
    bool operator!=(const Sequence& other) const noexcept { return !(*this == other); }

private:
    BaseTypes::Identifier id_;
    BaseTypes::Utf8String name_;
};

} // namespace Qiv::BusinessEntityModel::Edits
