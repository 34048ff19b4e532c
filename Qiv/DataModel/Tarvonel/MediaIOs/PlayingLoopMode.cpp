#include <Qiv/DataModel/Tarvonel/MediaIOs/PlayingLoopMode.h>

#include <ostream>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

namespace
{

constexpr BusinessEntityModel::BaseTypes::EnumerationText<PlayingLoopMode> texts[] = {
    {PlayingLoopMode::Unknown, "Unknown"},
    {PlayingLoopMode::None, "None"},
    {PlayingLoopMode::Loop, "Loop"},
    {PlayingLoopMode::Bounce, "Bounce"},
};

} // namespace

const std::string& ToString(PlayingLoopMode value)
{
    return BusinessEntityModel::BaseTypes::TextOf<texts>(value);
}

PlayingLoopMode ToPlayingLoopMode(const std::string& text)
{
    return To<PlayingLoopMode>(text);
}

bool FromText(std::string_view text, PlayingLoopMode& value) noexcept
{
    return BusinessEntityModel::BaseTypes::FindEnumerator(texts, text, PlayingLoopMode::Unknown, value);
}

std::ostream& operator<<(std::ostream& stream, PlayingLoopMode value)
{
    return stream << ToString(value);
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
