#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Mirror.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/Clone.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Refusal.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/Write.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/WriteUpdate.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <istream>
#include <ostream>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
{

using Common::Serialization::Result;
using Common::Serialization::Json::JsonObject;
using Common::Serialization::Json::Stringer;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;
using Tarvonel::Nodes::Node;

namespace
{

std::unique_ptr<MediaIO> NewChannel(DocumentKind kind)
{
    if (kind == DocumentKind::MediaInput)
        return std::make_unique<MediaInput>();
    return std::make_unique<MediaOutput>();
}

DocumentKind KindOf(const MediaIO& channel)
{
    return channel.GetMode() == MediaIO::Mode::Input ? DocumentKind::MediaInput : DocumentKind::MediaOutput;
}

bool AreSame(const Node& left, const Node& right)
{
    return left == right;
}

bool AreSame(const MediaIO& left, const MediaIO& right)
{
    Stringer update;
    return !Updates::WriteUpdate(left, right, update).HasChanges();
}

template <typename Entities>
const auto* Find(const Entities& entities, std::string_view id)
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

/// Puts what has been read in the place of what was there under the identifier.
template <typename Entities, typename Entity>
Effect Store(Entities& entities, std::string_view id, std::unique_ptr<Entity> entity)
{
    const auto place = entities.lower_bound(id);
    if (place == entities.end() || place->first != id)
    {
        entities.emplace_hint(place, id, std::move(entity));
        return Effect::Created;
    }
    const auto effect = AreSame(*place->second, *entity) ? Effect::Unchanged : Effect::Changed;
    place->second = std::move(entity);
    return effect;
}

} // namespace

Mirror::Mirror() = default;
Mirror::Mirror(Mirror&&) noexcept = default;
Mirror& Mirror::operator=(Mirror&&) noexcept = default;
Mirror::~Mirror() = default;

ApplyResult Mirror::Apply(const JsonObject& document, const ReadOptions& options)
{
    return ApplyDocument(document, {}, ReadMode::Merge, options);
}

ApplyResult Mirror::ApplySnapshot(const JsonObject& document, const ReadOptions& options)
{
    return ApplyDocument(document, {}, ReadMode::Snapshot, options);
}

ApplyResult Mirror::ApplyText(std::string_view text, ReadMode mode, const ReadOptions& options)
{
    JsonObject document;
    if (auto result = ParseText(text, document); !result)
    {
        if (options.findings != nullptr)
            options.findings->clear();
        return {std::move(result), std::nullopt, {}};
    }
    return ApplyDocument(document, text, mode, options);
}

ApplyResult Mirror::ApplyDocument(const JsonObject& document, std::string_view text, ReadMode mode,
                                  const ReadOptions& options)
{
    const auto kind = Json::KindOf(document);
    const auto id = IdOf(document);

    const auto refused = [&](std::string message, const Finding& finding = {})
    {
        const auto offset = finding.pointer.empty() ? document.getOffsetStart() : finding.offset;
        return ApplyResult(TextResult(std::move(message), PositionOf(text, offset), finding.pointer), kind,
                           std::string(id));
    };
    const auto failed = [&](const std::vector<Finding>& found, const std::string& message)
    {
        const auto* const failure = FirstFailure(found);
        return refused(message, failure != nullptr ? *failure : Finding());
    };

    if (auto refusal = Details::RefusalOf(document, kind.value_or(DocumentKind::MediaInput), options, text); !refusal)
        return {std::move(refusal), kind, std::string(id)};
    if (!kind)
    {
        MediaInput nothing; // fails without taking anything, and tells why
        return failed(InspectDocument(document), MergeWhole(document, nothing).ErrorMessage());
    }
    if (*kind != DocumentKind::Node && *kind != DocumentKind::MediaInput && *kind != DocumentKind::MediaOutput)
        return refused("a mirror keeps nodes and channels, and this is a " + std::string(ToString(*kind)));
    if (id.empty())
        return refused("the document has no identifier");

    if (*kind == DocumentKind::Node)
    {
        auto node = std::make_unique<Node>();
        if (const auto result = ReadSnapshot(document, *node); !result)
            return failed(InspectDocument(document, *kind), result.ErrorMessage());
        const auto effect = Store(nodes_, id, std::move(node));
        return {*kind, std::string(id), effect};
    }

    const auto* const existing = FindChannel(id);
    const auto targetKind = existing != nullptr ? KindOf(*existing) : *kind;
    if (targetKind == DocumentKind::MediaOutput) // of others nothing ends the process
    {
        const auto found = InspectDocument(document, targetKind);
        if (const auto* const fatal = FirstFatal(found))
            return refused(fatal->sentence, *fatal);
    }
    auto channel =
        existing != nullptr && mode == ReadMode::Merge ? Json::Channels::Clone(*existing) : NewChannel(targetKind);
    if (const auto result = MergeWhole(document, *channel); !result)
        return failed(InspectDocument(document, targetKind), result.ErrorMessage());
    const auto effect = Store(channels_, id, std::move(channel));
    return {*kind, std::string(id), effect};
}

const MediaIO* Mirror::FindChannel(std::string_view id) const
{
    return Find(channels_, id);
}

const Node* Mirror::FindNode(std::string_view id) const
{
    return Find(nodes_, id);
}

bool Mirror::RemoveChannel(std::string_view id)
{
    return Remove(channels_, id);
}

bool Mirror::RemoveNode(std::string_view id)
{
    return Remove(nodes_, id);
}

std::vector<const MediaIO*> Mirror::Channels() const
{
    return All<MediaIO>(channels_);
}

std::vector<const Node*> Mirror::Nodes() const
{
    return All<Node>(nodes_);
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
    writeAll(nodes_);
    writeAll(channels_);
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
