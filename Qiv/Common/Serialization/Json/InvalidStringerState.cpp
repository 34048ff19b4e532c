#include <Qiv/Common/Serialization/Json/InvalidStringerState.h>

namespace Qiv::Common::Serialization::Json
{

InvalidStringerState::~InvalidStringerState() = default;

} // namespace Qiv::Common::Serialization::Json
