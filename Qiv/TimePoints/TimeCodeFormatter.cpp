#include <Qiv/TimePoints/TimeCodeFormatter.h>

namespace Qiv::TimePoints
{

TimeCodeFormatter::~TimeCodeFormatter() = default;

} // namespace Qiv::TimePoints
