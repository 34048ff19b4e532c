#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>

#include <string>

namespace Qiv::Common::Serialization::Json::Details
{

Result InvalidType(std::string_view type, std::string_view expected)
{
    return std::string("Invalid type ").append(type).append(" : ").append(expected).append(" expected");
}

} // namespace Qiv::Common::Serialization::Json::Details
