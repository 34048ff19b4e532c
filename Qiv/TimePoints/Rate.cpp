#include <Qiv/TimePoints/Rate.h>

#include <Qiv/TimePoints/Details/Hash.h>
#include <Qiv/TimePoints/Details/Text.h>

#include <limits>
#include <ostream>

namespace Qiv::TimePoints
{

std::string Rate::ToString() const
{
    char buffer[2 * (std::numeric_limits<std::int64_t>::digits10 + 2) + 1]; // two numbers and a slash
    char* end = Details::WriteDecimal(numerator_, buffer);
    *end++ = '/';
    return std::string(buffer, Details::WriteDecimal(denominator_, end));
}

std::ostream& operator<<(std::ostream& stream, const Rate& rate)
{
    return stream << rate.ToString();
}

} // namespace Qiv::TimePoints

std::size_t std::hash<Qiv::TimePoints::Rate>::operator()(const Qiv::TimePoints::Rate& rate) const noexcept
{
    using Qiv::TimePoints::Details::Hash;
    return Hash(rate.Numerator(), Hash(rate.Denominator()));
}
