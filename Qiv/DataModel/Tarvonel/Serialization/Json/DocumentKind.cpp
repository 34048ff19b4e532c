#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>

#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

using namespace Common::Serialization::Json;

namespace
{

struct Tag
{
    std::string_view text;
    DocumentKind kind;
};

constexpr Tag tags[] = {
    {"MediaInput", DocumentKind::MediaInput},
    {"MediaOutput", DocumentKind::MediaOutput},
    {"Node", DocumentKind::Node},
    {"SequenceOutput", DocumentKind::SequenceOutput},
    {"Speed", DocumentKind::Speed},
    {"BoundaryAbsolute", DocumentKind::Boundary},
    {"BoundaryRelative", DocumentKind::Boundary},
};

} // namespace

std::optional<DocumentKind> KindOf(const JsonObject& document) noexcept
{
    const auto text = IfText(FindMember(document, "_type"));
    for (const auto& tag : tags)
        if (text == tag.text)
            return tag.kind;
    return std::nullopt;
}

std::string_view IdOf(const JsonObject& document) noexcept
{
    const auto kind = KindOf(document);
    const auto hasIdentifier =
        kind == DocumentKind::MediaInput || kind == DocumentKind::MediaOutput || kind == DocumentKind::Node;
    return hasIdentifier ? IfText(FindMember(document, "id")).value_or(std::string_view()) : std::string_view();
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
