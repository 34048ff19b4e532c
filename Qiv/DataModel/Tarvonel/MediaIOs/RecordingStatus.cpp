#include <Qiv/DataModel/Tarvonel/MediaIOs/RecordingStatus.h>

#include <ostream>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

namespace
{

constexpr BusinessEntityModel::BaseTypes::EnumerationText<RecordingStatus> texts[] = {
    {RecordingStatus::Idle, "Idle"},
    {RecordingStatus::Pause, "Pause"},
    {RecordingStatus::Recording, "Recording"},
};

} // namespace

const std::string& ToString(RecordingStatus value)
{
    return BusinessEntityModel::BaseTypes::TextOf<texts>(value);
}

RecordingStatus ToRecordingStatus(const std::string& text)
{
    return To<RecordingStatus>(text);
}

bool FromText(std::string_view text, RecordingStatus& value) noexcept
{
    return BusinessEntityModel::BaseTypes::FindEnumerator(texts, text, RecordingStatus::Idle, value);
}

std::ostream& operator<<(std::ostream& stream, RecordingStatus value)
{
    return stream << ToString(value);
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
