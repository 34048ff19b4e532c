#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>

#include <charconv>

namespace Qiv::Common::Serialization::Json
{

void AppendNanosecondsObject(Stringer& stringer, const char* type, std::int64_t nanoseconds)
{
    char digits[20]; // "-9223372036854775808"
    const auto* const end = std::to_chars(std::begin(digits), std::end(digits), nanoseconds).ptr;

    stringer.Object();
    stringer.Member("_type", type);
    stringer.Member("value", std::string_view(digits, static_cast<std::size_t>(end - digits)));
    stringer.CloseObject();
}

} // namespace Qiv::Common::Serialization::Json
