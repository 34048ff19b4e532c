#include <Qiv/TimePoints/DurationParser.h>

namespace Qiv::TimePoints
{

DurationParser::~DurationParser() = default;

} // namespace Qiv::TimePoints
