#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingStatus.h>

#include <ostream>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

namespace
{

constexpr BusinessEntityModel::BaseTypes::EnumerationText<PlayingStatus> texts[] = {
    {PlayingStatus::Idle, "Idle"},     {PlayingStatus::Live, "Live"},   {PlayingStatus::Empty, "Empty"},
    {PlayingStatus::Cueing, "Cueing"}, {PlayingStatus::Ready, "Ready"}, {PlayingStatus::Playing, "Playing"},
};

} // namespace

const std::string& ToString(PlayingStatus value)
{
    return BusinessEntityModel::BaseTypes::TextOf<texts>(value);
}

PlayingStatus ToPlayingStatus(const std::string& text)
{
    return To<PlayingStatus>(text);
}

bool FromText(std::string_view text, PlayingStatus& value) noexcept
{
    return BusinessEntityModel::BaseTypes::FindEnumerator(texts, text, PlayingStatus::Idle, value);
}

std::ostream& operator<<(std::ostream& stream, PlayingStatus value)
{
    return stream << ToString(value);
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
