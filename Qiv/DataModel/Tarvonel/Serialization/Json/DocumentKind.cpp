#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>

#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/InspectValue.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/BoundaryForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/ChannelForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SequenceOutputForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/SpeedForm.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/Details/NodeForm.h>

#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

using namespace Serialization::MediaIOs::Json::Details;
using Common::Serialization::Json::JsonObject;
using Common::Serialization::Json::Details::keyOf;
using Common::Serialization::Json::Details::ValueView;
using Nodes::Json::Details::NodeForm;

namespace
{

struct Tag
{
    std::string_view text;
    DocumentKind kind;
};

constexpr Tag tags[] = {
    {ChannelForm::recorderTag, DocumentKind::MediaInput},
    {ChannelForm::playerTag, DocumentKind::MediaOutput},
    {NodeForm::tag, DocumentKind::Node},
    {SequenceOutputForm::tag, DocumentKind::SequenceOutput},
    {SpeedForm::tag, DocumentKind::Speed},
    {BoundaryForm::absoluteTag, DocumentKind::Boundary},
    {BoundaryForm::relativeTag, DocumentKind::Boundary},
};

} // namespace

std::optional<DocumentKind> Details::KindOfValue(ValueView document) noexcept
{
    const auto text = document.Find(keyOf<ChannelForm::type>).Text();
    for (const auto& tag : tags)
        if (text == tag.text)
            return tag.kind;
    return std::nullopt;
}

std::optional<DocumentKind> KindOf(const JsonObject& document) noexcept
{
    return Details::KindOfValue(document);
}

std::string_view IdOf(const JsonObject& document) noexcept
{
    const auto kind = KindOf(document);
    const auto hasIdentifier =
        kind == DocumentKind::MediaInput || kind == DocumentKind::MediaOutput || kind == DocumentKind::Node;
    return hasIdentifier ? ValueView(document).Find(keyOf<ChannelForm::id>).Text().value_or(std::string_view())
                         : std::string_view();
}

std::string_view ToString(DocumentKind kind) noexcept
{
    if (kind == DocumentKind::Boundary) // the only kind with two tags
        return "Boundary";
    for (const auto& tag : tags)
        if (kind == tag.kind)
            return tag.text;
    return "unknown";
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
