#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Inspection.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>
#include <Qiv/Common/Serialization/Json/Stringer.h>

#include <algorithm>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using namespace Common::Serialization::Json;

namespace
{

bool IsOfType(const JsonObject& value, Type type) noexcept
{
    switch (type)
    {
    case Type::Text:
        return value.isString();
    case Type::Integer:
        return value.isInt();
    case Type::Boolean:
        return value.isBool();
    case Type::Array:
        return value.isArray();
    case Type::Object:
        return value.isObject();
    case Type::Nanoseconds:
        return value.isString() || value.isInt64();
    case Type::Any:
        break;
    }
    return !value.isNull();
}

std::string_view NameOf(Type type) noexcept
{
    switch (type)
    {
    case Type::Text:
        return "a string";
    case Type::Integer:
        return "an integer of 32 bits";
    case Type::Boolean:
        return "true or false";
    case Type::Array:
        return "an array";
    case Type::Object:
        return "an object";
    case Type::Nanoseconds:
        return "a string or an integer of 64 bits";
    case Type::Any:
        break;
    }
    return "a value";
}

std::string_view TypeNameOf(const JsonObject& value) noexcept
{
    switch (value.type())
    {
    case ::Json::nullValue:
        return "null";
    case ::Json::intValue:
    case ::Json::uintValue:
        return value.isInt64() ? value.isInt() ? "an integer of 32 bits" : "an integer of 64 bits" : "a number";
    case ::Json::realValue:
        return "a number";
    case ::Json::stringValue:
        return "a string";
    case ::Json::booleanValue:
        return "a boolean";
    case ::Json::arrayValue:
        return "an array";
    case ::Json::objectValue:
        break;
    }
    return "an object";
}

bool Has(const Members& members, std::string_view key)
{
    return std::any_of(members.begin(), members.end(), [key](const Member& member) { return member.key == key; }) ||
           (members.base != nullptr && Has(*members.base, key));
}

} // namespace

Inspection::Step::Step(Inspection& inspection, std::string_view key)
    : inspection_(inspection), length_(inspection.pointer_.size())
{
    auto& pointer = inspection_.pointer_;
    pointer += '/';
    for (const char character : key)
    {
        if (character == '~')
            pointer += "~0";
        else if (character == '/')
            pointer += "~1";
        else
            pointer += character;
    }
}

void Inspection::Report(FindingKind kind, const JsonObject& value, std::string sentence, std::string readerMessage)
{
    findings_.push_back({pointer_, kind, std::move(sentence), std::move(readerMessage), value.getOffsetStart()});
}

void Inspection::ReportFailure(const JsonObject& value, std::string_view why, std::string readerMessage)
{
    auto sentence = std::string(why).append(", so the reader fails with ").append(Quote(readerMessage, 200));
    Report(FindingKind::Failure, value, std::move(sentence), std::move(readerMessage));
}

void Inspection::ReportMissing(const JsonObject& object, std::string_view key, const char* without)
{
    auto sentence = Quote(key).append(" is required and absent");
    if (without != objectIsSkipped)
        ReportFailure(object, sentence, without);
    else
        Report(FindingKind::MissingMember, object, sentence.append("; the object is skipped"));
}

void Inspection::ReportWrongType(const JsonObject& object, const JsonObject& value, const Member& member)
{
    auto sentence =
        std::string("is ").append(TypeNameOf(value)).append(", where ").append(NameOf(member.type)).append(" belongs");
    if (member.without == nullptr)
        Report(FindingKind::WrongType, value, sentence.append("; it is skipped"));
    else if (member.without == objectIsSkipped)
        Report(FindingKind::WrongType, value, sentence.append("; the object around it is skipped"));
    else
        ReportFailure(value.isNull() ? object : value, sentence, member.without);
}

bool Inspection::HasTag(const JsonObject& object, const Shape& shape)
{
    const auto* const tag = FindRaw(object, "_type");
    if (tag == nullptr)
    {
        if (shape.withoutTag == nullptr)
            return true;
        ReportMissing(object, "_type", shape.withoutTag);
        return false;
    }
    const Step step(*this, "_type");
    if (!tag->isString())
    {
        ReportWrongType(object, *tag, {"_type", Type::Text, nullptr, shape.withoutTag});
        return shape.withoutTag == nullptr;
    }
    if (TextOf(*tag) == shape.tag)
        return true;
    auto sentence = Quote(TextOf(*tag)).append(" is not ").append(Quote(shape.tag));
    if (shape.withoutTag == objectIsSkipped)
        Report(FindingKind::InvalidValue, *tag, sentence.append("; the object around it is skipped"));
    else
        ReportFailure(*tag, sentence,
                      shape.withoutTag != nullptr ? shape.withoutTag
                                                  : CheckType(IfText(tag), shape.tag).ErrorMessage());
    return false;
}

void Inspection::Inspect(const JsonObject& value, const Shape& shape)
{
    if (shape.empty != nullptr && IsEmptyObject(value))
    {
        ReportFailure(value,
                      value.isNull()     ? "is null"
                      : value.isObject() ? "is an object without members"
                                         : "is no object",
                      shape.empty);
        return;
    }
    // The reader takes nothing from an object whose tag it refuses.
    if (!HasTag(value, shape))
        return;
    InspectMembers(value, shape.members);
    ReportUnknown(value, shape.members, shape.tag);
}

void Inspection::InspectMembers(const JsonObject& object, const Members& members)
{
    if (members.base != nullptr)
        InspectMembers(object, *members.base);
    for (const auto& member : members)
        InspectMember(object, member);
}

void Inspection::InspectForFatal(const JsonObject& object, const Members& members)
{
    const auto before = static_cast<std::ptrdiff_t>(findings_.size());
    InspectMembers(object, members);
    findings_.erase(std::remove_if(findings_.begin() + before, findings_.end(),
                                   [](const Finding& finding) { return finding.kind != FindingKind::EndsProcess; }),
                    findings_.end());
}

void Inspection::InspectMember(const JsonObject& object, const Member& member)
{
    const auto* const value = FindRaw(object, member.key);
    if (value == nullptr)
    {
        if (member.without != nullptr)
            ReportMissing(object, member.key, member.without);
        return;
    }
    const Step step(*this, member.key);
    if (!IsOfType(*value, member.type))
        ReportWrongType(object, *value, member);
    else if (member.check != nullptr)
        member.check(*this, *value);
}

void Inspection::ReportUnknown(const JsonObject& object, const Members& members, std::string_view tag)
{
    for (auto member = object.begin(); member != object.end(); ++member)
    {
        const auto name = Details::NameOf(member);
        if (name == "_type" || Has(members, name))
            continue;
        const Step step(*this, name);
        Report(FindingKind::UnknownMember, *member,
               Quote(name).append(" is no member of ").append(tag).append("; it is skipped"));
    }
}

std::string_view NameOf(const JsonObject::const_iterator& member)
{
    const char* end = nullptr;
    const char* const begin = member.memberName(&end);
    return {begin, static_cast<std::size_t>(end - begin)};
}

std::string Quote(std::string_view text, std::size_t longest)
{
    if (text.size() <= longest)
        return Stringer().Value(text).ToString();
    auto length = longest;
    while (length > longest - 4 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) // within a character
        --length;
    return Stringer().Value(text.substr(0, length)).ToString() + "...";
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
