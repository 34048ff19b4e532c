#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Inspection.h>

#include <Qiv/Common/Serialization/Json/Details/KnownMembers.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Pointer.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Quote.h>

#include <algorithm>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using Common::Serialization::Json::Details::InvalidType;
using Common::Serialization::Json::Details::typeKey;

namespace
{

bool IsOfType(ValueView value, JsonType type) noexcept
{
    switch (type)
    {
    case JsonType::Text:
        return value.IsText();
    case JsonType::Integer:
        return value.Int32().has_value();
    case JsonType::Boolean:
        return value.Boolean().has_value();
    case JsonType::Array:
        return value.IsArray();
    case JsonType::Object:
        return value.IsObject();
    case JsonType::Nanoseconds:
        return value.IsText() || value.Int64();
    case JsonType::Any:
        break;
    }
    return !value.IsNull();
}

std::string_view NameOf(JsonType type) noexcept
{
    switch (type)
    {
    case JsonType::Text:
        return "a string";
    case JsonType::Integer:
        return "an integer of 32 bits";
    case JsonType::Boolean:
        return "true or false";
    case JsonType::Array:
        return "an array";
    case JsonType::Object:
        return "an object";
    case JsonType::Nanoseconds:
        return "a string or an integer of 64 bits";
    case JsonType::Any:
        break;
    }
    return "a value";
}

std::string_view TypeNameOf(ValueView value) noexcept
{
    if (value.IsNull())
        return "null";
    if (value.IsText())
        return "a string";
    if (value.Boolean())
        return "a boolean";
    if (value.IsArray())
        return "an array";
    if (value.IsObject())
        return "an object";
    if (!value.IsInteger() || !value.Int64())
        return "a number";
    return value.Int32() ? "an integer of 32 bits" : "an integer of 64 bits";
}

bool HasRule(const ObjectRules& rules, std::string_view key)
{
    return std::any_of(rules.begin(), rules.end(), [key](const MemberRule& rule) { return rule.key == key; }) ||
           (rules.base != nullptr && HasRule(*rules.base, key));
}

} // namespace

std::string Inspection::Pointer() const
{
    return PointerTo(path_);
}

void Inspection::Report(FindingKind kind, ValueView value, std::string sentence, std::string readerMessage)
{
    if (IsKept(kind))
        findings_.push_back({Pointer(), kind, std::move(sentence), std::move(readerMessage), value.Offset()});
}

bool Inspection::IsKept(FindingKind kind)
{
    if (onlyFatal_ && kind != FindingKind::EndsProcess)
        return false;
    const bool isFirst = (kind == FindingKind::Failure && !std::exchange(hasFailure_, true)) ||
                         (kind == FindingKind::EndsProcess && !std::exchange(hasFatal_, true));
    return findings_.size() < maximum_ || isFirst;
}

void Inspection::ReportFailure(ValueView value, std::string_view why, std::string readerMessage)
{
    auto sentence = std::string(why).append(", so the reader fails with ").append(Quote(readerMessage, 200));
    Report(FindingKind::Failure, value, std::move(sentence), std::move(readerMessage));
}

void Inspection::ReportMissing(ValueView object, std::string_view key, const Otherwise& otherwise)
{
    auto sentence = Quote(key).append(" is required and absent");
    if (otherwise.kind == Otherwise::ReaderFails)
        ReportFailure(object, sentence, otherwise.message);
    else
        Report(FindingKind::MissingMember, object, sentence.append("; the object is skipped"));
}

void Inspection::ReportWrongType(ValueView value, const MemberRule& rule)
{
    auto sentence =
        std::string("is ").append(TypeNameOf(value)).append(", where ").append(NameOf(rule.type)).append(" belongs");
    switch (rule.otherwise.kind)
    {
    case Otherwise::MemberIsSkipped:
        return Report(FindingKind::WrongType, value, sentence.append("; it is skipped"));
    case Otherwise::ObjectIsSkipped:
        return Report(FindingKind::WrongType, value, sentence.append("; the object around it is skipped"));
    case Otherwise::ReaderFails:
        return ReportFailure(value, sentence, rule.otherwise.message);
    }
}

bool Inspection::HasTag(ValueView object, const ObjectShape& shape)
{
    const bool isOptional = shape.withoutTag.kind == Otherwise::MemberIsSkipped;
    const auto tag = object.Find(typeKey);
    if (!tag)
    {
        if (!isOptional)
            ReportMissing(object, typeKey, shape.withoutTag);
        return isOptional;
    }
    const Step step(*this, typeKey);
    const auto text = tag.Text();
    if (!text)
    {
        ReportWrongType(tag, {typeKey, JsonType::Text, nullptr, shape.withoutTag});
        return isOptional;
    }
    if (*text == shape.tag)
        return true;
    auto sentence = Quote(*text).append(" is not ").append(Quote(shape.tag));
    if (shape.withoutTag.kind == Otherwise::ObjectIsSkipped)
        Report(FindingKind::InvalidValue, tag, sentence.append("; the object around it is skipped"));
    else
        ReportFailure(tag, sentence,
                      isOptional ? InvalidType(*text, shape.tag).ErrorMessage() : shape.withoutTag.message);
    return false;
}

void Inspection::Inspect(ValueView value, const ObjectShape& shape)
{
    if (shape.emptyMessage != nullptr && value.IsEmptyObject())
    {
        ReportFailure(value,
                      value.IsNull()     ? "is null"
                      : value.IsObject() ? "is an object without members"
                                         : "is no object",
                      shape.emptyMessage);
        return;
    }
    // The reader takes nothing from an object whose tag it refuses.
    if (!HasTag(value, shape))
        return;
    InspectMembers(value, shape.rules);
    ReportUnknown(value, shape.rules, shape.tag);
}

void Inspection::InspectMembers(ValueView object, const ObjectRules& rules)
{
    if (rules.base != nullptr)
        InspectMembers(object, *rules.base);
    for (const auto& rule : rules)
        InspectMember(object, rule);
}

void Inspection::InspectForFatal(ValueView object, const ObjectRules& rules)
{
    onlyFatal_ = true;
    InspectMembers(object, rules);
    onlyFatal_ = false;
}

void Inspection::InspectMember(ValueView object, const MemberRule& rule)
{
    const auto value = object.Find(rule.key);
    if (!value)
    {
        if (rule.otherwise.kind != Otherwise::MemberIsSkipped)
            ReportMissing(object, rule.key, rule.otherwise);
        return;
    }
    const Step step(*this, rule.key);
    object_ = object;
    if (!IsOfType(value, rule.type))
        ReportWrongType(value, rule);
    else if (rule.check != nullptr)
        rule.check(*this, value);
}

void Inspection::ReportUnknown(ValueView object, const ObjectRules& rules, std::string_view tag)
{
    object.VisitMembers(
        [&](std::string_view name, ValueView member)
        {
            if (name == typeKey || HasRule(rules, name))
                return;
            const Step step(*this, name);
            Report(FindingKind::UnknownMember, member,
                   Quote(name).append(" is no member of ").append(tag).append("; it is skipped"));
        });
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
