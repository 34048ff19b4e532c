#include <Qiv/TimePoints/TimeCodeBuilder.h>

#include <Qiv/TimePoints/Details/TimeCodeFields.h>

namespace Qiv::TimePoints
{

bool TimeCodeBuilder::IsValidToBuildWithexception() const
{
    Details::ThrowIfNotValid(Fields());
    return true;
}

bool TimeCodeBuilder::IsValidToBuild() const noexcept
{
    return Details::FirstFailedCheck(Fields()) == Details::Check::None;
}

TimeCode TimeCodeBuilder::Build() const
{
    return IsValidToBuildWithexception() ? Details::Build(Fields()) : TimeCode::Empty();
}

Details::TimeCodeFields TimeCodeBuilder::Fields() const noexcept
{
    return {{year_, month_, day_}, {hour_, minute_, second_, sample_}, rate_, isDrop_, hasDate_};
}

} // namespace Qiv::TimePoints
