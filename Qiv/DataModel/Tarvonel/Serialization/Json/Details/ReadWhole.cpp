#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/ReadWhole.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/Details/ReadNode.h>

#include <memory>
#include <type_traits>
#include <utility>
#include <variant>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using namespace Serialization::MediaIOs::Json::Details;
using namespace Tarvonel::MediaIOs;
using Common::Serialization::Json::Details::ValueView;
using Nodes::Json::Details::ReadNode;
using Tarvonel::Nodes::Node;

namespace
{

// What a new channel takes, another one takes, too: so it is merged in place after a trial, without a copy of all that
// it has. A copy makes a small update of a full player take a sixth more instructions, its parsing counted. Metadata
// alone decide by what they hold already whether reading throws, and others may hold their profiles: the trial merges
// into clones of them, which the channel then takes over.
template <typename Channel>
Result MergeInto(Channel& channel, const ChannelMembers& members, const std::function<void()>& beforeMerge)
{
    auto trial = NewEntity(channel);
    const bool hasMetadata = bool(members.Get<ChannelForm::metadata>());
    if (hasMetadata)
        trial.Metadata() = channel.Metadata().Clone();
    if (auto result = ReadMediaIO(members, trial); !result)
        return result;
    beforeMerge();
    if (hasMetadata)
        std::swap(channel.Metadata(), trial.Metadata());
    return ReadMediaIO(members, channel);
}

/// Calls `use` with the channel as one of its own kind.
template <typename Use>
Result WithOwnKind(MediaIO& channel, const Use& use)
{
    return channel.GetMode() == MediaIO::Mode::Input ? use(static_cast<MediaInput&>(channel))
                                                     : use(static_cast<MediaOutput&>(channel));
}

/// How each target is read; a channel as one of its own kind, so that all of it is replaced or tried.
struct WholeReader
{
    ValueView json;
    ReadMode mode;

    Result operator()(MediaIO& channel) const
    {
        if (mode == ReadMode::Merge)
            return MergeChannel(ChannelMembers(json), channel, [] {});
        return WithOwnKind(channel, [this](auto& ownKind) { return Read(ownKind, ReadChannel); });
    }
    Result operator()(Node& node) const { return ReadNode(json, node); } // assigned whole, as the last step
    Result operator()(SequenceOutput& sequenceOutput) const { return Read(sequenceOutput, ReadSequenceOutput); }
    Result operator()(Speed& speed) const { return Read(speed, ReadSpeed); }
    Result operator()(std::unique_ptr<Boundary>& boundary) const { return Read(boundary, ReadBoundary); }

private:
    static Result ReadChannel(ValueView json, MediaIO& channel) { return ReadMediaIO(json, channel); }

    template <typename Entity, typename Target>
    Result Read(Entity& entity, Result (*read)(ValueView, Target&)) const
    {
        // Boundaries are replaced by every reading, so that there is nothing to copy.
        constexpr bool isReplaced = std::is_same_v<Entity, std::unique_ptr<Boundary>>;
        auto copy = mode == ReadMode::Merge && !isReplaced ? IndependentCopy(entity) : NewEntity(entity);
        auto result = read(json, copy);
        if (result)
            entity = std::move(copy);
        return result;
    }
};

struct KindOfTarget
{
    DocumentKind operator()(const MediaIO& channel) const
    {
        return channel.GetMode() == MediaIO::Mode::Input ? DocumentKind::MediaInput : DocumentKind::MediaOutput;
    }
    DocumentKind operator()(const Node&) const { return DocumentKind::Node; }
    DocumentKind operator()(const SequenceOutput&) const { return DocumentKind::SequenceOutput; }
    DocumentKind operator()(const Speed&) const { return DocumentKind::Speed; }
    DocumentKind operator()(const std::unique_ptr<Boundary>&) const { return DocumentKind::Boundary; }
};

} // namespace

Result ReadWhole(ValueView json, const ReadTarget& target, ReadMode mode)
{
    return std::visit([&](auto entity) { return WholeReader{json, mode}(entity.get()); }, target);
}

Result MergeChannel(const ChannelMembers& members, MediaIO& channel, const std::function<void()>& beforeMerge)
{
    return WithOwnKind(channel, [&](auto& ownKind) { return MergeInto(ownKind, members, beforeMerge); });
}

DocumentKind KindOf(const ReadTarget& target)
{
    return std::visit([](auto entity) { return KindOfTarget()(entity.get()); }, target);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
