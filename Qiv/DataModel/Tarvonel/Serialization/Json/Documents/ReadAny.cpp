#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Refusal.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

using Common::Serialization::Result;
using Common::Serialization::Json::JsonObject;
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

template <typename Entity>
Result ReadAs(const JsonObject& json, AnyEntity& target)
{
    Entity entity{};
    auto result = ReadSnapshot(json, entity);
    if (result)
        target = EntityOf(std::move(entity));
    return result;
}

Result ReadKind(const JsonObject& json, DocumentKind kind, AnyEntity& target)
{
    switch (kind)
    {
    case DocumentKind::MediaInput:
        return ReadAs<MediaInput>(json, target);
    case DocumentKind::MediaOutput:
        return ReadAs<MediaOutput>(json, target);
    case DocumentKind::Node:
        return ReadAs<Node>(json, target);
    case DocumentKind::SequenceOutput:
        return ReadAs<SequenceOutput>(json, target);
    case DocumentKind::Speed:
        return ReadAs<Speed>(json, target);
    case DocumentKind::Boundary:
        break;
    }
    return ReadAs<std::unique_ptr<Boundary>>(json, target);
}

AnyResult Read(const JsonObject& json, const ReadOptions& options, std::string_view text)
{
    const auto failure = [text](const Finding& finding, const std::string& message)
    { return TextResult(message, PositionOf(text, finding.offset), finding.pointer); };

    // A document of no kind is read as a channel, which fails without taking anything from it.
    const auto kind = KindOf(json).value_or(DocumentKind::MediaInput);
    if (auto refusal = Details::RefusalOf(json, kind, options, text); !refusal)
        return refusal;
    if (kind == DocumentKind::MediaOutput || kind == DocumentKind::Boundary) // of others nothing ends the process
    {
        const auto findings = InspectDocument(json, kind);
        if (const auto* const fatal = FirstFatal(findings))
            return failure(*fatal, fatal->sentence);
    }
    AnyEntity entity;
    const auto result = ReadKind(json, kind, entity);
    if (result)
        return entity;
    const auto findings = InspectDocument(json, kind);
    const auto* const announced = FirstFailure(findings);
    return failure(announced != nullptr ? *announced : Finding(), result.ErrorMessage());
}

} // namespace

AnyResult ReadAny(const JsonObject& json, const ReadOptions& options)
{
    return Read(json, options, {});
}

AnyResult ReadAnyText(std::string_view text, const ReadOptions& options)
{
    if (options.findings != nullptr)
        options.findings->clear();
    JsonObject json;
    if (auto result = ParseText(text, json); !result)
        return result;
    return Read(json, options, text);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
