#include "Shape.h"

namespace Qiv
{

struct Shape::Hidden
{
    HIDDEN;
};

Surface::~Surface() = default;
Shape::Shape() : hidden(std::make_unique<Hidden>()) {}
Shape::~Shape() = default;
int Shape::VIRTUAL_1() const
{
    return CODE;
}
int Shape::VIRTUAL_2() const
{
    return 2;
}
bool Shape::TEMPLATE_1(const int& value) const
{
    return value == 3;
}
Kind Shape::KindOf(const Surface& surface) const
{
    return surface.PURE_1() > 0 ? Kind::First : Kind::Second;
}
#ifndef WITHOUT_FUNCTION
RESULT Shape::Count() const
{
    return 4;
}
#endif

} // namespace Qiv
