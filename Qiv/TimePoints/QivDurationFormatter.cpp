#include <Qiv/TimePoints/QivDurationFormatter.h>

#include <Qiv/TimePoints/Details/Text.h>

namespace Qiv::TimePoints
{

QivDurationFormatter::~QivDurationFormatter() = default;

std::string QivDurationFormatter::Format(const Duration& duration) const
{
    char buffer[MaximumLength];
    return std::string(FormatTo(duration, buffer));
}

std::string_view QivDurationFormatter::FormatTo(const Duration& duration, char* buffer) noexcept
{
    const char* end = Details::WriteDecimal(duration.Nanoseconds(), buffer);
    return std::string_view(buffer, static_cast<std::size_t>(end - buffer));
}

} // namespace Qiv::TimePoints
