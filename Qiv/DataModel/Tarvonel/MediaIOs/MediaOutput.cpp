#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>

#include <tuple>
#include <typeinfo>
#include <utility>

namespace Qiv::DataModel::Tarvonel::MediaIOs
{

MediaOutput::OwnedBoundary::OwnedBoundary() : pointer_(std::make_unique<BoundaryAbsolute>()) {}

MediaOutput::OwnedBoundary::OwnedBoundary(const OwnedBoundary& other)
{
    Pointer(other.pointer_->Clone());
}

MediaOutput::OwnedBoundary::OwnedBoundary(OwnedBoundary&& other) noexcept(false) : OwnedBoundary()
{
    pointer_.swap(other.pointer_);
}

MediaOutput::OwnedBoundary& MediaOutput::OwnedBoundary::operator=(const OwnedBoundary& other)
{
    Pointer(other.pointer_->Clone());
    return *this;
}

MediaOutput::OwnedBoundary& MediaOutput::OwnedBoundary::operator=(OwnedBoundary&& other) noexcept(false)
{
    if (this == &other)
        return *this;
    // The former boundary is left behind, emptied, where it is of the kind: a snapshot takes two allocations fewer.
    const auto& former = *pointer_;
    if (typeid(former) == typeid(BoundaryAbsolute))
        static_cast<BoundaryAbsolute&>(*pointer_) = BoundaryAbsolute();
    else
        pointer_ = std::make_unique<BoundaryAbsolute>();
    pointer_.swap(other.pointer_);
    return *this;
}

void MediaOutput::OwnedBoundary::Pointer(std::unique_ptr<Boundary>&& pointer)
{
    pointer_ = pointer != nullptr ? std::move(pointer) : std::make_unique<BoundaryAbsolute>();
}

MediaOutput::MediaOutput() = default;
MediaOutput::MediaOutput(const MediaOutput&) = default;
MediaOutput::MediaOutput(MediaOutput&&) noexcept(false) = default;
MediaOutput& MediaOutput::operator=(const MediaOutput&) = default;
MediaOutput& MediaOutput::operator=(MediaOutput&&) noexcept(false) = default;
MediaOutput::~MediaOutput() = default;

MediaIO::Mode MediaOutput::GetMode() const
{
    return Mode::Output;
}

void MediaOutput::InBoundary(std::unique_ptr<Boundary>&& inBoundary)
{
    inBoundary_.Pointer(std::move(inBoundary));
}

void MediaOutput::OutBoundary(std::unique_ptr<Boundary>&& outBoundary)
{
    outBoundary_.Pointer(std::move(outBoundary));
}

bool MediaOutput::operator==(const MediaOutput& other) const
{
    const auto members = [](const MediaOutput& channel)
    {
        return std::tie(channel.playingStatus_, channel.speedOnAir_, channel.globalLoopMode_, channel.remainingTime_,
                        channel.currentTimePointOnAir_, channel.todTimecodeOnAir_, channel.userTimecodeOnAir_,
                        channel.primaryTimecodeType_, *channel.InBoundary(), *channel.OutBoundary(), channel.sequence_);
    };
    return HasEqualCommonMembers(other) && members(*this) == members(other);
}

} // namespace Qiv::DataModel::Tarvonel::MediaIOs
