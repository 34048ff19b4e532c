#include <Qiv/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>

namespace Qiv::BusinessEntityModel::BaseTypes
{

const FullyQualifiedName& FullyQualifiedName::Empty()
{
    // Never destroyed: entities with static storage may still ask for it while the process ends.
    static const FullyQualifiedName& empty = *new FullyQualifiedName();
    return empty;
}

FullyQualifiedName FullyQualifiedName::Concat(const std::string& prefix, char suffix)
{
    return prefix + suffix;
}

FullyQualifiedName FullyQualifiedName::Concat(const std::string& prefix, const std::string& suffix)
{
    return prefix + suffix;
}

FullyQualifiedName FullyQualifiedName::Concat(const std::string& prefix, int suffix)
{
    return prefix + std::to_string(suffix);
}

FullyQualifiedName FullyQualifiedName::Concat(const std::string& prefix, std::uint32_t suffix)
{
    return prefix + std::to_string(suffix);
}

FullyQualifiedName FullyQualifiedName::Combine(const std::string& left, char separator, const std::string& right)
{
    return left + separator + right;
}

FullyQualifiedName FullyQualifiedName::Combine(const std::string& left, char separator, int right)
{
    return left + separator + std::to_string(right);
}

FullyQualifiedName FullyQualifiedName::Combine(const std::string& left, char separator, std::uint32_t right)
{
    return left + separator + std::to_string(right);
}

FullyQualifiedName FullyQualifiedName::CombinePath(const std::string& left, const std::string& right)
{
    return left.empty() || right.empty() ? left + right : left + '.' + right;
}

} // namespace Qiv::BusinessEntityModel::BaseTypes
