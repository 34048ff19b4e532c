#ifndef RESULT
#define RESULT 3
#endif
#ifndef count_t
#define count_t int
#endif
#ifndef result_t
#define result_t int
#endif
#include "Shape.h"

namespace Qiv {

struct Shape::Hidden
{
    int width = RESULT;
#ifdef HIDDEN_FIELD
    int height = 0;
#endif
};

Surface::~Surface() = default;
Shape::Shape() : hidden(std::make_unique<Hidden>()) {}
Shape::~Shape() = default;
int Shape::Width() const { return hidden->width; }
int Shape::Height() const { return count; }
bool Shape::To(const int& value) const { return value == RESULT; }
Kind Shape::KindOf(const Surface& surface) const { return surface.Area() > 0 ? Kind::First : Kind::Second; }
#ifndef WITHOUT_FUNCTION
std::string Shape::Name() const { return name; }
#endif
result_t Shape::Count() const { return count; }

} // namespace Qiv
