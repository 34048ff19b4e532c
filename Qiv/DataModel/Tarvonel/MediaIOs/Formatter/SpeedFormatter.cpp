#include <Qiv/DataModel/Tarvonel/MediaIOs/Formatter/SpeedFormatter.h>

namespace Qiv::DataModel::Tarvonel::MediaIOs::Formatter
{

SpeedFormatter::~SpeedFormatter() = default;

std::string SpeedFormatter::Format(const Speed& speed) const
{
    return std::to_string(speed.Numerator()) + '/' + std::to_string(speed.Denominator());
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs::Formatter
