#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/InspectValue.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/ReadDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/TextDocument.h>

#include <memory>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

using Common::Serialization::Json::JsonObject;
using Common::Serialization::Json::Details::ValueView;
using Tarvonel::MediaIOs::Boundary;
using Tarvonel::MediaIOs::BoundaryAbsolute;
using Tarvonel::MediaIOs::BoundaryRelative;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaOutput;
using Tarvonel::MediaIOs::SequenceOutput;
using Tarvonel::MediaIOs::Speed;
using Tarvonel::Nodes::Node;

namespace
{

AnyEntity EntityOf(std::unique_ptr<Boundary> boundary)
{
    if (auto* const relative = dynamic_cast<BoundaryRelative*>(boundary.get()))
        return std::move(*relative);
    return std::move(dynamic_cast<BoundaryAbsolute&>(*boundary));
}

template <typename Entity>
Entity EntityOf(Entity&& entity)
{
    return std::forward<Entity>(entity);
}

// What every kind of document is read with.
struct Source
{
    ValueView json;
    std::string_view text; // that it was parsed from, or empty
    const ReadOptions& options;
};

template <typename Entity>
AnyResult ReadAs(const Source& source)
{
    Entity entity{};
    if (auto result =
            Details::ReadDocument(source.json, source.text, entity, Details::ReadMode::Snapshot, source.options);
        !result)
        return result;
    return AnyEntity(EntityOf(std::move(entity)));
}

AnyResult Read(const Source& source)
{
    // A document of no kind is read as a channel, which fails without taking anything from it.
    switch (Details::KindOfValue(source.json).value_or(DocumentKind::MediaInput))
    {
    case DocumentKind::MediaInput:
        return ReadAs<MediaInput>(source);
    case DocumentKind::MediaOutput:
        return ReadAs<MediaOutput>(source);
    case DocumentKind::Node:
        return ReadAs<Node>(source);
    case DocumentKind::SequenceOutput:
        return ReadAs<SequenceOutput>(source);
    case DocumentKind::Speed:
        return ReadAs<Speed>(source);
    case DocumentKind::Boundary:
        break;
    }
    return ReadAs<std::unique_ptr<Boundary>>(source);
}

} // namespace

AnyResult ReadAny(const JsonObject& json, const ReadOptions& options)
{
    return Read({json, {}, options});
}

AnyResult ReadAnyText(std::string_view text, const ReadOptions& options)
{
    Details::TextDocument document;
    if (auto failure = Details::ParseFor(options, text, document); !failure)
        return failure;
    return Read({ValueView(document.Nodes(), document.Root()), text, options});
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
