#include <Qiv/BusinessEntityModel/Edits/Serialization/Json/JsonToSequenceConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>

namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
{

using namespace Common::Serialization::Json;
using Common::Serialization::Result;

namespace
{

struct Keys
{
    enum class Index
    {
        Type,
        Id,
        Name
    };
    static constexpr std::array<std::string_view, 3> names{"_type", "id", "name"};
};
using Key = Keys::Index;

} // namespace

JsonToSequenceConverter::~JsonToSequenceConverter() = default;

Result JsonToSequenceConverter::To(const JsonObject& json, Sequence& sequence) const
{
    const KnownMembers<Keys> members(json);
    if (members.IsEmpty())
        return "Sequence is empty";
    if (auto result = CheckType(members.Text(Key::Type), "Sequence"); !result)
        return result;

    if (const auto id = members.Text(Key::Id))
        sequence.Id(BaseTypes::Identifier(*id));

    if (const auto name = members.Text(Key::Name))
        sequence.Name(BaseTypes::Utf8String(*name));

    return {};
}

} // namespace Qiv::BusinessEntityModel::Edits::Serialization::Json
