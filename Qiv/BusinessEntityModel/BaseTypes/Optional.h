#pragma once

#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// A value that may be absent, held in place.
///
/// Reading an absent value throws std::runtime_error with the text "Can't retrieve the value of a Null Optional value".
/// When constructing a value throws, the optional is empty; when assigning to an existing value throws, the optional
/// keeps that value in the state in which `T` left it. A moved-from optional still has its (moved-from) value.
template <typename T>
class Optional
{
    static_assert(std::is_object_v<T> && !std::is_const_v<T> && !std::is_array_v<T>);

public:
    /// A shared empty optional, usable until the very end of the process.
    static const Optional& Null()
    {
        static const Optional& null = *new Optional();
        return null;
    }

    Optional() noexcept {}
    Optional(const T& value) { Copy(value); }
    Optional(T&& value) noexcept(std::is_nothrow_move_constructible_v<T>) { Move(std::move(value)); }
    Optional(const Optional& other)
    {
        if (other.hasValue_)
            Copy(other.ThisRef());
    }
    Optional(Optional&& other) noexcept(std::is_nothrow_move_constructible_v<T>)
    {
        if (other.hasValue_)
            Move(std::move(other.ThisRef()));
    }
    ~Optional() { Undefine(); }

    Optional& operator=(const T& value)
    {
        if (hasValue_)
            ThisRef() = value;
        else
            Copy(value);
        return *this;
    }
    Optional& operator=(T&& value) noexcept(isNothrowMovable)
    {
        if (hasValue_)
            ThisRef() = std::move(value);
        else
            Move(std::move(value));
        return *this;
    }
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): to itself, the value assigns itself
    Optional& operator=(const Optional& other)
    {
        if (other.hasValue_)
            return *this = other.ThisRef();
        Undefine();
        return *this;
    }
    Optional& operator=(Optional&& other) noexcept(isNothrowMovable)
    {
        if (other.hasValue_)
            return *this = std::move(other.ThisRef());
        Undefine();
        return *this;
    }

    bool HasValue() const noexcept { return hasValue_; }
    explicit operator bool() const noexcept { return hasValue_; }

    /// Destroys the value if there is one and leaves the optional empty.
    void Undefine() noexcept
    {
        if (hasValue_)
            Delete();
    }

    const T& Value() const { return ThisRef(); }
    T& Value() { return ThisRef(); }
    const T& operator*() const { return ThisRef(); }
    T& operator*() { return ThisRef(); }
    const T* operator->() const { return &ThisRef(); }
    T* operator->() { return &ThisRef(); }

    /// Equal when both are empty or both hold equal values.
    bool operator==(const Optional& other) const
    {
        return hasValue_ == other.hasValue_ && (!hasValue_ || ThisRef() == other.ThisRef());
    }
    bool operator!=(const Optional& other) const { return !(*this == other); }

private:
    static constexpr bool isNothrowMovable =
        std::is_nothrow_move_constructible_v<T> && std::is_nothrow_move_assignable_v<T>;

    void Copy(const T& value)
    {
        ::new (static_cast<void*>(content_)) T(value);
        hasValue_ = true;
    }

    void Move(T&& value) noexcept(std::is_nothrow_move_constructible_v<T>)
    {
        ::new (static_cast<void*>(content_)) T(std::move(value));
        hasValue_ = true;
    }

    void Delete() noexcept
    {
        hasValue_ = false;
        std::launder(reinterpret_cast<T*>(content_))->~T();
    }

    const T& ThisRef() const
    {
        RequireValue();
        return *std::launder(reinterpret_cast<const T*>(content_));
    }

    T& ThisRef()
    {
        RequireValue();
        return *std::launder(reinterpret_cast<T*>(content_));
    }

    void RequireValue() const
    {
        if (!hasValue_)
            throw std::runtime_error("Can't retrieve the value of a Null Optional value");
    }

    bool hasValue_ = false;
    alignas(T) unsigned char content_[sizeof(T)];
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
