#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>

#include <algorithm>
#include <tuple>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

MediaInput::~MediaInput() = default;

MediaIO::Mode MediaInput::GetMode() const
{
    return Mode::Input;
}

void MediaInput::RemainingCapacity(TimePoints::Duration& remainingCapacity)
{
    remainingCapacity_ = remainingCapacity;
    totalCapacity_ = std::max(totalCapacity_, remainingCapacity_);
}

void MediaInput::TotalCapacity(const TimePoints::Duration& totalCapacity)
{
    totalCapacity_ = std::max(totalCapacity, TimePoints::Duration(0));
    remainingCapacity_ = std::min(remainingCapacity_, totalCapacity_);
}

bool MediaInput::operator==(const MediaInput& other) const
{
    const auto members = [](const MediaInput& channel)
    {
        return std::tie(channel.recordingStatus_, channel.lastTimePoint_, channel.lastTodTimecode_,
                        channel.lastUserTimecode_, channel.primaryTimecodeType_, channel.remainingCapacity_,
                        channel.totalCapacity_);
    };
    return HasEqualCommonMembers(other) && members(*this) == members(other);
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
