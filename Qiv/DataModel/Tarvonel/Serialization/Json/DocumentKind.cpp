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

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
