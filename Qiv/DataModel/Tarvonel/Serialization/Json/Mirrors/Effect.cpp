#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Effect.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
{

std::string_view ToString(Effect effect) noexcept
{
    switch (effect)
    {
    case Effect::Created:
        return "created";
    case Effect::Changed:
        return "changed";
    case Effect::Unchanged:
        return "unchanged";
    case Effect::Refused:
        break;
    }
    return "refused";
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
