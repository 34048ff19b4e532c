#include <Qiv/TimePoints/DurationFormatter.h>

namespace Qiv::TimePoints
{

DurationFormatter::~DurationFormatter() = default;

} // namespace Qiv::TimePoints
