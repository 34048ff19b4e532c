#include <Qiv/DataModel/MediaAssets/TimecodePrimary.h>

#include <ostream>

namespace Qiv::DataModel::MediaAssets
{

namespace
{

constexpr BusinessEntityModel::BaseTypes::EnumerationText<TimecodePrimary> texts[] = {
    {TimecodePrimary::NotSet, "NotSet"},
    {TimecodePrimary::Tod, "Tod"},
    {TimecodePrimary::User, "User"},
};

} // namespace

const std::string& ToString(TimecodePrimary value)
{
    return BusinessEntityModel::BaseTypes::TextOf<texts>(value);
}

TimecodePrimary ToTimecodePrimary(const std::string& text)
{
    return To<TimecodePrimary>(text);
}

bool FromText(std::string_view text, TimecodePrimary& value) noexcept
{
    return BusinessEntityModel::BaseTypes::FindEnumerator(texts, text, TimecodePrimary::NotSet, value);
}

std::ostream& operator<<(std::ostream& stream, TimecodePrimary value)
{
    return stream << ToString(value);
}

} // namespace Qiv::DataModel::MediaAssets
