#include <Qiv/DataModel/Tarvonel/MediaIOs/Parser/SpeedParser.h>

#include <charconv>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <system_error>

namespace Qiv::DataModel::Tarvonel::MediaIOs::Parser
{

namespace
{

std::optional<Speed> Read(const std::string& text) noexcept
{
    const char* const end = text.data() + text.size();
    std::int32_t numerator = 0;
    const auto first = std::from_chars(text.data(), end, numerator);
    if (first.ec != std::errc() || first.ptr == end || *first.ptr != '/')
        return std::nullopt;
    std::uint32_t denominator = 0;
    const auto second = std::from_chars(first.ptr + 1, end, denominator);
    if (second.ec != std::errc() || second.ptr != end)
        return std::nullopt;
    return Speed(numerator, denominator);
}

} // namespace

SpeedParser::~SpeedParser() = default;

Speed SpeedParser::Parse(const std::string& text) const
{
    if (const auto speed = Read(text))
        return *speed;
    throw std::invalid_argument("Invalid speed: '" + text + "', \"numerator/denominator\" expected");
}

bool SpeedParser::IsStringFormatValid(const std::string& text) const
{
    return Read(text).has_value();
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs::Parser
