#include <Qiv/Common/Serialization/Json/NanosecondsObject.h>

#include <Qiv/Common/Serialization/Json/Details/TimePointForm.h>
#include <Qiv/TimePoints/Details/Text.h>

#include <limits>

namespace Qiv::Common::Serialization::Json
{

void AppendNanosecondsObject(Stringer& stringer, std::string_view type, std::int64_t nanoseconds)
{
    char text[std::numeric_limits<std::int64_t>::digits10 + 2]; // a sign, and a digit that may not have all values
    const char* const end = TimePoints::Details::WriteDecimal(nanoseconds, text);
    stringer.ObjectOfTwo(
        {Details::keyOf<Details::TimePointForm::type>, type},
        {Details::keyOf<Details::TimePointForm::value>, std::string_view(text, static_cast<std::size_t>(end - text))});
}

} // namespace Qiv::Common::Serialization::Json
