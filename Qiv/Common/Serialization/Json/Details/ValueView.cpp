#include <Qiv/Common/Serialization/Json/Details/ValueView.h>

#include <Qiv/Common/Serialization/Json/Details/NumberText.h>

namespace Qiv::Common::Serialization::Json::Details
{

std::string ValueView::ScalarText() const
{
    if (value_ == nullptr)
        return {};
    if (IsOfTree())
        return Json().asString();
    switch (Node().type)
    {
    case NodeType::Integer:
        return std::to_string(IntegerOfNode());
    case NodeType::Real:
        return RealOfNode().asString();
    case NodeType::True:
        return "true";
    case NodeType::False:
        return "false";
    case NodeType::Text:
    case NodeType::UnsignedInteger: // as it is spelled: without a sign, and with no zero before it
        return std::string(TextOf(*document_, Node()));
    case NodeType::Null:
    case NodeType::Object:
    case NodeType::Array:
        break;
    }
    return {};
}

std::size_t ValueView::FindMembers(const KeyTable& keys, std::size_t keyCount, const void** members) const noexcept
{
    const auto keep = [&](std::string_view name, ValueView member)
    {
        if (const auto index = keys.Find(name); index != KeyTable::notFound)
            members[index] = member.value_;
    };

    if (value_ == nullptr)
        return 0;
    if (!IsOfTree())
        return VisitMembersOfText(keep);
    // A look-up of a key takes as long as walking over some four members.
    const std::size_t size = Json().size();
    if (size <= 4 * keyCount || !IsObject())
        return VisitMembersOfTree(size, keep);
    for (std::size_t i = 0; i < keyCount; ++i)
        members[i] = Find(keys.KeyAt(i)).value_;
    return size;
}

JsonObject ValueView::RealOfNode() const
{
    return RealOf(TextOf(*document_, Node()));
}

} // namespace Qiv::Common::Serialization::Json::Details
