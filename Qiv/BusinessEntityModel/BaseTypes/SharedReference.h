#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>

#include <memory>
#include <stdexcept>
#include <utility>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// A link to an entity that lives elsewhere: its identifier, and the entity itself when it is at hand.
///
/// `T` has an accessor `Id()` that gives its Identifier. Whatever gives the reference an object also copies the
/// object's identifier, so both agree until one of them is changed through Id(...) or through the non-const Pointer();
/// UpdateIdentifier() makes them agree again. A copy shares the object. References are equal when their identifiers
/// are.
template <typename T>
class SharedReference
{
public:
    SharedReference() = default;
    SharedReference(const Identifier& id) : id_(id) {}
    SharedReference(Identifier&& id) noexcept : id_(std::move(id)) {}
    /// A null or expired pointer gives an empty reference.
    SharedReference(std::shared_ptr<T> pointer) { Pointer(std::move(pointer)); }
    SharedReference(const std::weak_ptr<T>& pointer) { Pointer(pointer); }
    SharedReference(std::unique_ptr<T>&& pointer) { Pointer(std::move(pointer)); }

    SharedReference& operator=(std::shared_ptr<T> pointer) { return *this = SharedReference(std::move(pointer)); }
    SharedReference& operator=(const std::weak_ptr<T>& pointer) { return *this = SharedReference(pointer); }
    SharedReference& operator=(std::unique_ptr<T>&& pointer) { return *this = SharedReference(std::move(pointer)); }

    /// True when there is neither an identifier nor an object.
    bool IsEmpty() const noexcept { return pointer_ == nullptr && id_.IsEmpty(); }
    explicit operator bool() const noexcept { return !IsEmpty(); }

    const Identifier& Id() const noexcept { return id_; }
    /// Sets the identifier alone; an object that the reference holds stays.
    void Id(const Identifier& id) { id_ = id; }
    operator const Identifier&() const noexcept { return id_; }

    const std::shared_ptr<T>& Pointer() const noexcept { return pointer_; }
    std::shared_ptr<T>& Pointer() noexcept { return pointer_; }
    /// Sets the object and copies its identifier. A null or expired pointer drops the object and keeps the identifier.
    void Pointer(std::shared_ptr<T> pointer)
    {
        pointer_ = std::move(pointer);
        UpdateIdentifier();
    }
    void Pointer(const std::weak_ptr<T>& pointer) { Pointer(pointer.lock()); }
    void Pointer(std::unique_ptr<T>&& pointer) { Pointer(std::shared_ptr<T>(std::move(pointer))); }

    /// The object; throws std::runtime_error with the text "null pointer" when none is held.
    const T& Value() const { return Object(); }
    T& Value() { return Object(); }
    const T& operator*() const { return Object(); }
    T& operator*() { return Object(); }
    const T* operator->() const { return &Object(); }
    T* operator->() { return &Object(); }

    /// Copies the object's own identifier; changes nothing when no object is held.
    void UpdateIdentifier()
    {
        if (pointer_ != nullptr)
            id_ = pointer_->Id();
    }

private:
    T& Object() const
    {
        if (pointer_ == nullptr)
            throw std::runtime_error("null pointer");
        return *pointer_;
    }

    std::shared_ptr<T> pointer_;
    Identifier id_;
};

template <typename T>
bool operator==(const SharedReference<T>& left, const SharedReference<T>& right) noexcept
{
    return left.Id() == right.Id();
}

template <typename T>
bool operator!=(const SharedReference<T>& left, const SharedReference<T>& right) noexcept
{
    return !(left == right);
}

} // namespace Qiv::BusinessEntityModel::BaseTypes
