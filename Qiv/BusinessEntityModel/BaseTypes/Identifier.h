#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Export.h>

#include <string>
#include <string_view>
#include <utility>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// The identity of an entity: any text, compared byte by byte. An empty text means "no identity known".
///
/// An identifier is its text and nothing more, so it converts to and from it implicitly.
class QIV_BUSINESSENTITYMODEL_BASETYPES_EXPORT Identifier
{
public:
    Identifier() = default;
    Identifier(std::string value) noexcept : value_(std::move(value)) {}
    explicit Identifier(std::string_view value) : value_(value) {}
    /// Null-terminated text.
    Identifier(const char* value) : value_(value) {}

    /// A shared empty identifier, usable until the very end of the process.
    static const Identifier& Empty();

    /// A new random identifier in the form of a version 4 UUID, such as "3f2c8a4e-07b1-4d0c-9a55-6e1f2b7c8d90".
    /// May be called from several threads at once. Throws std::runtime_error when the system has no random source.
    static Identifier Generate();

    bool IsEmpty() const noexcept { return value_.empty(); }
    const std::string& Value() const noexcept { return value_; }
    operator const std::string&() const noexcept { return value_; }

private:
    std::string value_;
};

inline bool operator==(const Identifier& left, const Identifier& right) noexcept
{
    return left.Value() == right.Value();
}

inline bool operator!=(const Identifier& left, const Identifier& right) noexcept
{
    return !(left == right);
}

inline bool operator<(const Identifier& left, const Identifier& right) noexcept
{
    return left.Value() < right.Value();
}

} // namespace Qiv::BusinessEntityModel::BaseTypes
