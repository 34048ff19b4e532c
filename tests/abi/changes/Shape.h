// A library in small, of which "interface.sh test" changes the words in capitals one at a time.
#pragma once
#include <memory>
#include <string>

namespace Qiv
{

enum class Kind
{
    First,
    Second = SECOND
};

struct EXPORTED Surface
{
    virtual ~Surface();
    virtual int PURE_1() const = 0;
    virtual int PURE_2() const = 0;
};

template <typename T>
struct EXPORTED Converter
{
    virtual ~Converter() = default;
    virtual bool TEMPLATE_1(const T& value) const = 0;
    virtual bool TEMPLATE_2(const T&) const { return false; }
};

class EXPORTED Shape : public Converter<int>
{
public:
    Shape();
    ~Shape() override;
    virtual int VIRTUAL_1() const;
    virtual int VIRTUAL_2() const;
    bool TEMPLATE_1(const int& value) const override;
    Kind KindOf(const Surface& surface) const;
    RESULT Count() const;

private:
    struct Hidden;

    std::string name;
    FIELD;
    std::unique_ptr<Hidden> hidden;
};

} // namespace Qiv
