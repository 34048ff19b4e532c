// A library in small; "interface.sh test" defines names and values otherwise, one at a time.
#pragma once
#include <memory>
#include <string>

#ifndef SECOND
#define SECOND 1
#endif

namespace Qiv {

enum class Kind
{
    First,
    Second = SECOND
};

struct __attribute__((visibility("default"))) Surface
{
    virtual ~Surface();
#ifndef SWAPPED_PURE
    virtual int Area() const = 0;
#endif
    virtual int Length() const = 0;
#ifdef SWAPPED_PURE
    virtual int Area() const = 0;
#endif
};

template <typename T>
struct __attribute__((visibility("default"))) Converter
{
    virtual ~Converter() = default;
#ifndef SWAPPED_IN_TEMPLATE
    virtual bool To(const T& value) const = 0;
#endif
    virtual bool Append(const T&) const { return false; }
#ifdef SWAPPED_IN_TEMPLATE
    virtual bool To(const T& value) const = 0;
#endif
};

class __attribute__((visibility("default"))) Shape : public Converter<int>
{
public:
    Shape();
    ~Shape() override;

#ifndef SWAPPED_VIRTUAL
    virtual int Width() const;
#endif
    virtual int Height() const;
#ifdef SWAPPED_VIRTUAL
    virtual int Width() const;
#endif
    bool To(const int& value) const override;
    Kind KindOf(const Surface& surface) const;
#ifndef WITHOUT_FUNCTION
    std::string Name() const;
#endif
    result_t Count() const;

private:
    struct Hidden;

    std::string name;
    count_t count = 1;
#ifdef FIELD
    void* field = nullptr;
#endif
    std::unique_ptr<Hidden> hidden;
};

} // namespace Qiv
