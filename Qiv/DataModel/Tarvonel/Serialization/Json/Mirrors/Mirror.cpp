#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Mirror.h>

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/InspectValue.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/ReadDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/HaveEqualContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/Write.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Details/ChannelProbe.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>

#include <istream>
#include <map>
#include <ostream>
#include <string>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
{

using Common::Serialization::Json::JsonObject;
using Common::Serialization::Json::Stringer;
using Common::Serialization::Json::Details::keyOf;
using Common::Serialization::Json::Details::ValueView;
using Json::Details::ReadMode;
using MediaIOs::Json::Details::ChannelForm;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;
using Tarvonel::Nodes::Node;

namespace
{

/// A document, the text that it was parsed from, or none, and how it is to be read.
struct Source
{
    ValueView json;
    std::string_view text;
    ReadMode mode;
    const ReadOptions& options;

    TextResult ReadInto(const ReadTarget& target) const
    {
        return Json::Details::ReadDocument(json, text, target, mode, options);
    }
};

std::unique_ptr<MediaIO> NewChannel(DocumentKind kind)
{
    if (kind == DocumentKind::MediaInput)
        return std::make_unique<MediaInput>();
    return std::make_unique<MediaOutput>();
}

template <typename Entities>
auto* Find(const Entities& entities, std::string_view id)
{
    const auto entry = entities.find(id);
    return entry != entities.end() ? entry->second.get() : nullptr;
}

template <typename Entities>
bool Remove(Entities& entities, std::string_view id)
{
    const auto entry = entities.find(id);
    if (entry == entities.end())
        return false;
    entities.erase(entry);
    return true;
}

template <typename Entity, typename Entities>
std::vector<const Entity*> All(const Entities& entities)
{
    std::vector<const Entity*> all;
    all.reserve(entities.size());
    for (const auto& [id, entity] : entities)
        all.push_back(entity.get());
    return all;
}

Effect EffectOf(bool hasChanged)
{
    return hasChanged ? Effect::Changed : Effect::Unchanged;
}

} // namespace

class Mirror::State
{
public:
    ApplyResult Apply(const Source& source)
    {
        const auto kind = Json::Details::KindOfValue(source.json);
        if (!kind)
        {
            MediaInput nothing; // reading a channel of no kind fails without taking anything from it
            return {source.ReadInto(nothing), std::nullopt, {}};
        }
        const auto refused = [&](std::string message) {
            return ApplyResult({std::move(message), PositionOf(source.text, source.json.Offset())}, kind, {});
        };
        if (*kind != DocumentKind::Node && *kind != DocumentKind::MediaInput && *kind != DocumentKind::MediaOutput)
            return refused("a mirror keeps nodes and channels, and this is a " + std::string(ToString(*kind)));
        auto id = std::string(source.json.Find(keyOf<ChannelForm::id>).Text().value_or("")); // a node's key is the same
        if (id.empty())
            return refused("the document has no identifier");

        auto effect = Effect::Refused;
        auto result =
            *kind == DocumentKind::Node ? ApplyToNode(source, id, effect) : ApplyToChannel(source, *kind, id, effect);
        if (!result)
            return {std::move(result), kind, std::move(id)};
        return {*kind, std::move(id), effect};
    }

    ApplyResult ApplyText(std::string_view text, ReadMode mode, const ReadOptions& options)
    {
        Json::Details::TextDocument document;
        if (auto failure = Json::Details::ParseFor(options, text, document); !failure)
            return {std::move(failure), std::nullopt, {}};
        return Apply({ValueView(document.Nodes(), document.Root()), text, mode, options});
    }

    std::map<std::string, std::unique_ptr<Node>, std::less<>> nodes;
    std::map<std::string, std::unique_ptr<MediaIO>, std::less<>> channels;

private:
    TextResult ApplyToNode(const Source& source, const std::string& id, Effect& effect)
    {
        auto node = std::make_unique<Node>();
        if (auto result = source.ReadInto(*node); !result)
            return result;
        auto& place = nodes[id];
        effect = place == nullptr ? Effect::Created : EffectOf(*place != *node);
        place = std::move(node);
        return {};
    }

    TextResult ApplyToChannel(const Source& source, DocumentKind kind, const std::string& id, Effect& effect)
    {
        auto* const existing = Find(channels, id);
        if (existing != nullptr && source.mode == ReadMode::Merge)
        {
            const Details::ChannelProbe probe(source.json, *existing);
            auto result = source.ReadInto(*existing);
            if (result)
                effect = EffectOf(probe.HasChanged(*existing));
            return result;
        }

        auto channel = NewChannel(existing == nullptr                           ? kind
                                  : existing->GetMode() == MediaIO::Mode::Input ? DocumentKind::MediaInput
                                                                                : DocumentKind::MediaOutput);
        if (auto result = source.ReadInto(*channel); !result)
            return result;
        effect = existing == nullptr ? Effect::Created : EffectOf(!Documents::HaveEqualContent(*existing, *channel));
        channels[id] = std::move(channel);
        return {};
    }
};

Mirror::Mirror() : state_(std::make_unique<State>()) {}
Mirror::Mirror(Mirror&&) noexcept = default;
Mirror& Mirror::operator=(Mirror&&) noexcept = default;
Mirror::~Mirror() = default;

ApplyResult Mirror::Apply(const JsonObject& document, const ReadOptions& options)
{
    return state_->Apply({document, {}, ReadMode::Merge, options});
}

ApplyResult Mirror::ApplySnapshot(const JsonObject& document, const ReadOptions& options)
{
    return state_->Apply({document, {}, ReadMode::Snapshot, options});
}

ApplyResult Mirror::ApplyText(std::string_view text, const ReadOptions& options)
{
    return state_->ApplyText(text, ReadMode::Merge, options);
}

ApplyResult Mirror::ApplySnapshotText(std::string_view text, const ReadOptions& options)
{
    return state_->ApplyText(text, ReadMode::Snapshot, options);
}

const MediaIO* Mirror::FindChannel(std::string_view id) const
{
    return Find(state_->channels, id);
}

const Node* Mirror::FindNode(std::string_view id) const
{
    return Find(state_->nodes, id);
}

bool Mirror::RemoveChannel(std::string_view id)
{
    return Remove(state_->channels, id);
}

bool Mirror::RemoveNode(std::string_view id)
{
    return Remove(state_->nodes, id);
}

std::vector<const MediaIO*> Mirror::Channels() const
{
    return All<MediaIO>(state_->channels);
}

std::vector<const Node*> Mirror::Nodes() const
{
    return All<Node>(state_->nodes);
}

void Mirror::WriteAll(std::ostream& stream) const
{
    const auto writeAll = [&stream](const auto& entities)
    {
        for (const auto& [id, entity] : entities)
        {
            Stringer stringer;
            static_cast<void>(Documents::Write(*entity, stringer)); // fails for no entity that was read
            const auto line = stringer.ToString() + '\n';
            stream.write(line.data(), static_cast<std::streamsize>(line.size()));
        }
    };
    writeAll(state_->nodes);
    writeAll(state_->channels);
}

Mirror::LineCounts Mirror::ReadAll(std::istream& stream,
                                   const std::function<void(std::size_t line, const ApplyResult& result)>& onLine)
{
    LineCounts counts;
    std::string line;
    for (std::size_t number = 1; std::getline(stream, line); ++number)
    {
        if (line.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        const auto result = ApplySnapshot(line);
        switch (result.Effect())
        {
        case Effect::Created:
            ++counts.created;
            break;
        case Effect::Changed:
            ++counts.changed;
            break;
        case Effect::Unchanged:
            ++counts.unchanged;
            break;
        case Effect::Refused:
            ++counts.refused;
            break;
        }
        if (onLine)
            onLine(number, result);
    }
    return counts;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
