#include <Qiv/TimePoints/TimeCodeParser.h>

namespace Qiv::TimePoints
{

TimeCodeParser::~TimeCodeParser() = default;

} // namespace Qiv::TimePoints
