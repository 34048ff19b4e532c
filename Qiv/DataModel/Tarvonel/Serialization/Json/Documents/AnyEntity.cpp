#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/AnyEntity.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

using BusinessEntityModel::BaseTypes::Identifier;
using Tarvonel::MediaIOs::BoundaryAbsolute;
using Tarvonel::MediaIOs::BoundaryRelative;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;
using Tarvonel::MediaIOs::SequenceOutput;
using Tarvonel::MediaIOs::Speed;
using Tarvonel::Nodes::Node;

namespace
{

struct Kind
{
    DocumentKind operator()(const MediaInput&) const { return DocumentKind::MediaInput; }
    DocumentKind operator()(const MediaOutput&) const { return DocumentKind::MediaOutput; }
    DocumentKind operator()(const Node&) const { return DocumentKind::Node; }
    DocumentKind operator()(const SequenceOutput&) const { return DocumentKind::SequenceOutput; }
    DocumentKind operator()(const Speed&) const { return DocumentKind::Speed; }
    DocumentKind operator()(const BoundaryAbsolute&) const { return DocumentKind::Boundary; }
    DocumentKind operator()(const BoundaryRelative&) const { return DocumentKind::Boundary; }
};

} // namespace

DocumentKind KindOf(const AnyEntity& entity)
{
    return std::visit(Kind(), entity);
}

const Identifier& IdOf(const AnyEntity& entity) noexcept
{
    if (const auto* const channel = ChannelOf(entity))
        return channel->Id();
    const auto* const node = std::get_if<Node>(&entity);
    return node != nullptr ? node->NodeId() : Identifier::Empty();
}

const MediaIO* ChannelOf(const AnyEntity& entity) noexcept
{
    if (const auto* const input = std::get_if<MediaInput>(&entity))
        return input;
    return std::get_if<MediaOutput>(&entity);
}

MediaIO* ChannelOf(AnyEntity& entity) noexcept
{
    return const_cast<MediaIO*>(ChannelOf(std::as_const(entity)));
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
