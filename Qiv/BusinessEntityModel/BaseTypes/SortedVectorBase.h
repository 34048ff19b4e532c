#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Export.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Qiv::BusinessEntityModel::BaseTypes
{

/// A vector whose elements are in ascending order by `Less`, no two of them equal by `Equal`.
///
/// Elements may be changed in place; whoever changes what they are compared by calls Sort() before the next look-up.
/// A duplicate throws std::runtime_error with the text
/// "Qiv::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection", and a position that
/// does not exist (also Front() and Back() of an empty vector) throws std::out_of_range. What the comparators throw
/// passes through. In all these cases the collection is unchanged.
template <typename T, typename Less, typename Equal, typename Allocator = std::allocator<T>>
class QIV_BUSINESSENTITYMODEL_BASETYPES_EXPORT SortedVectorBase
{
public:
    using Container = std::vector<T, Allocator>;
    using value_type = T;
    using iterator = typename Container::iterator;
    using const_iterator = typename Container::const_iterator;

    SortedVectorBase() = default;
    SortedVectorBase(const SortedVectorBase&) = default;
    SortedVectorBase(SortedVectorBase&&) = default;
    SortedVectorBase& operator=(const SortedVectorBase&) = default;
    SortedVectorBase& operator=(SortedVectorBase&&) = default;

    /// Puts `item` at its place. Declared before the destructor: it owns the first slot of the virtual table.
    virtual void Insert(const T& item)
    {
        const auto place = LowerBound(elements_, item);
        if (place != elements_.end() && Equal()(*place, item))
            ThrowDuplicate();
        elements_.insert(place, item);
    }

    virtual ~SortedVectorBase() = default;

    /// Removes the element equal to `item`; false when there is none.
    bool Erase(const T& item)
    {
        const auto place = Find(item);
        if (place == elements_.end())
            return false;
        elements_.erase(place);
        return true;
    }

    /// Puts `item` in the place of the element equal to it; false when there is none.
    bool Replace(const T& item)
    {
        const auto place = Find(item);
        if (place == elements_.end())
            return false;
        *place = item;
        return true;
    }

    void Clear() noexcept { elements_.clear(); }

    /// Restores the order after elements have been changed in place; throws when two of them have become equal.
    void Sort() { Values(elements_); }

    /// The element equal to `item`, or end().
    iterator Find(const T& item) { return FindIn(elements_, item); }
    const_iterator Find(const T& item) const { return FindIn(elements_, item); }
    const_iterator ConstFind(const T& item) const { return FindIn(elements_, item); }

    const T& At(std::size_t index) const { return elements_[Checked(index)]; }
    T& At(std::size_t index) { return elements_[Checked(index)]; }
    const T& operator[](std::size_t index) const { return At(index); }
    T& operator[](std::size_t index) { return At(index); }
    const T& Front() const { return At(0); }
    T& Front() { return At(0); }
    const T& Back() const { return At(Size() - 1); } // of an empty vector: an index that is never valid
    T& Back() { return At(Size() - 1); }

    std::size_t Size() const noexcept { return elements_.size(); }
    bool Empty() const noexcept { return elements_.empty(); }
    bool IsValidIndex(std::size_t index) const noexcept { return index < elements_.size(); }
    void CheckIndex(std::size_t index) const { static_cast<void>(Checked(index)); }

    /// A copy of the elements in their order.
    Container Values() const { return elements_; }
    /// Replaces all elements by those of `values`, which may be in any order; throws when two of them are equal.
    void Values(const Container& values)
    {
        // A copy is sorted, so that a comparator that throws leaves the elements as they were.
        Container sorted(values);
        std::stable_sort(sorted.begin(), sorted.end(), Less());
        if (std::adjacent_find(sorted.begin(), sorted.end(), Equal()) != sorted.end())
            ThrowDuplicate();
        elements_ = std::move(sorted);
    }

    iterator begin() noexcept { return elements_.begin(); }
    iterator end() noexcept { return elements_.end(); }
    const_iterator begin() const noexcept { return elements_.begin(); }
    const_iterator end() const noexcept { return elements_.end(); }
    const_iterator cbegin() const noexcept { return elements_.cbegin(); }
    const_iterator cend() const noexcept { return elements_.cend(); }

    /// Equal when the elements are, pair by pair, by `Equal`.
    bool operator==(const SortedVectorBase& other) const
    {
        return std::equal(begin(), end(), other.begin(), other.end(), Equal());
    }
    bool operator!=(const SortedVectorBase& other) const { return !(*this == other); }

private:
    template <typename Elements>
    static auto LowerBound(Elements& elements, const T& item)
    {
        return std::lower_bound(elements.begin(), elements.end(), item, Less());
    }

    template <typename Elements>
    static auto FindIn(Elements& elements, const T& item)
    {
        const auto place = LowerBound(elements, item);
        return place != elements.end() && Equal()(*place, item) ? place : elements.end();
    }

    std::size_t Checked(std::size_t index) const
    {
        if (!IsValidIndex(index))
            throw std::out_of_range("SortedVector: index out of range");
        return index;
    }

    [[noreturn]] static void ThrowDuplicate()
    {
        // The text names one namespace for every instance: the rest of the server knows the failure by it.
        throw std::runtime_error(
            "Qiv::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection");
    }

    Container elements_;
};

} // namespace Qiv::BusinessEntityModel::BaseTypes
