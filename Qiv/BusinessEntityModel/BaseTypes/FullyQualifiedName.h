#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Export.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// The dotted name of a metadata profile, for example "qiv.peloperator". Names are ordered and compared byte by byte.
///
/// A name is its text and nothing more, so it converts to and from it implicitly.
class QIV_BUSINESSENTITYMODEL_BASETYPES_EXPORT FullyQualifiedName
{
public:
    FullyQualifiedName() = default;
    FullyQualifiedName(std::string value) noexcept : value_(std::move(value)) {}
    explicit FullyQualifiedName(std::string_view value) : value_(value) {}
    /// Null-terminated text.
    FullyQualifiedName(const char* value) : value_(value) {}

    /// A shared empty name, usable until the very end of the process.
    static const FullyQualifiedName& Empty();

    bool IsEmpty() const noexcept { return value_.empty(); }
    const std::string& Value() const noexcept { return value_; }
    operator const std::string&() const noexcept { return value_; }

    /// `prefix` with `suffix` right behind it; numbers in decimal.
    static FullyQualifiedName Concat(const std::string& prefix, char suffix);
    static FullyQualifiedName Concat(const std::string& prefix, const std::string& suffix);
    static FullyQualifiedName Concat(const std::string& prefix, int suffix);
    static FullyQualifiedName Concat(const std::string& prefix, std::uint32_t suffix);

    /// `left`, `separator` and `right`, also when a part is empty; numbers in decimal.
    static FullyQualifiedName Combine(const std::string& left, char separator, const std::string& right);
    static FullyQualifiedName Combine(const std::string& left, char separator, int right);
    static FullyQualifiedName Combine(const std::string& left, char separator, std::uint32_t right);

    /// `left` and `right` with a dot between them; when one of them is empty, the other alone.
    static FullyQualifiedName CombinePath(const std::string& left, const std::string& right);

private:
    std::string value_;
};

inline bool operator==(const FullyQualifiedName& left, const FullyQualifiedName& right) noexcept
{
    return left.Value() == right.Value();
}

inline bool operator!=(const FullyQualifiedName& left, const FullyQualifiedName& right) noexcept
{
    return !(left == right);
}

inline bool operator<(const FullyQualifiedName& left, const FullyQualifiedName& right) noexcept
{
    return left.Value() < right.Value();
}

inline bool operator>(const FullyQualifiedName& left, const FullyQualifiedName& right) noexcept
{
    return right < left;
}

inline bool operator<=(const FullyQualifiedName& left, const FullyQualifiedName& right) noexcept
{
    return !(right < left);
}

inline bool operator>=(const FullyQualifiedName& left, const FullyQualifiedName& right) noexcept
{
    return !(left < right);
}

} // namespace Qiv::BusinessEntityModel::BaseTypes
