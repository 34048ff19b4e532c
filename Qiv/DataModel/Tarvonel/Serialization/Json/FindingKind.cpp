#include <Qiv/DataModel/Tarvonel/Serialization/Json/FindingKind.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

std::string_view ToString(FindingKind kind) noexcept
{
    switch (kind)
    {
    case FindingKind::UnknownMember:
        return "unknown-member";
    case FindingKind::Ignored:
        return "ignored";
    case FindingKind::WrongType:
        return "wrong-type";
    case FindingKind::InvalidValue:
        return "invalid-value";
    case FindingKind::MissingMember:
        return "missing-member";
    case FindingKind::Failure:
        return "failure";
    case FindingKind::EndsProcess:
        break;
    }
    return "ends-process";
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
