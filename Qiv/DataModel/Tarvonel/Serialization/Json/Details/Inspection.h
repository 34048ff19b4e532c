#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>
#include <Qiv/Common/Serialization/Json/Details/ValueView.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Finding.h>

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The walk over a document that compares it with what its reader takes, and the rules by which it does. There is a
/// rule for each member of a form, in the order in which the reader takes them.
namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using Common::Serialization::Json::Details::FormMember;
using Common::Serialization::Json::Details::FormMembers;
using Common::Serialization::Json::Details::JsonType;
using Common::Serialization::Json::Details::ListedKey;
using Common::Serialization::Json::Details::ValueView;

class Inspection;

/// What becomes of an object whose member is absent or not what the reader asks for.
struct Otherwise
{
    enum Kind
    {
        MemberIsSkipped,
        ObjectIsSkipped,
        ReaderFails
    };
    Kind kind = MemberIsSkipped;
    const char* message = nullptr; ///< with which the reader fails
};
inline constexpr Otherwise objectIsSkipped{Otherwise::ObjectIsSkipped, nullptr};
constexpr Otherwise FailsWith(const char* message)
{
    return {Otherwise::ReaderFails, message};
}

/// Inspects a value that is of the type which its member has.
using Check = void (*)(Inspection&, ValueView);

/// What a reader asks of one member.
struct MemberRule
{
    std::string_view key;
    JsonType type;
    Check check; ///< null when the type is all that it asks for
    Otherwise otherwise;
};

template <typename TForm>
constexpr MemberRule RuleOf(const FormMember<TForm>& member, Check check = nullptr, Otherwise otherwise = {})
{
    return {ListedKey(member), member.type, check, otherwise};
}

/// The rules of some members of a form. Fails to compile when one of them has no rule; "_type" has none.
template <typename TForm, std::size_t memberCount, std::size_t count>
constexpr std::array<MemberRule, count> RulesFor(const FormMembers<TForm, memberCount>& members,
                                                 const MemberRule (&rules)[count])
{
    for (const auto* const member : members)
    {
        bool hasRule = member == &TForm::type;
        for (const auto& rule : rules)
            hasRule = hasRule || rule.key == member->key;
        if (!hasRule)
            throw std::invalid_argument("a member of the form has no rule");
    }
    std::array<MemberRule, count> result{};
    for (std::size_t i = 0; i < count; ++i)
        result[i] = rules[i];
    return result;
}

/// The rules of an object: those of its base, then its own.
struct ObjectRules
{
    template <std::size_t ruleCount>
    constexpr ObjectRules(const std::array<MemberRule, ruleCount>& rules, const ObjectRules* theBase = nullptr)
        : first(rules.data()), count(ruleCount), base(theBase)
    {
    }

    const MemberRule* begin() const noexcept { return first; }
    const MemberRule* end() const noexcept { return first + count; }

    const MemberRule* first;
    std::size_t count;
    const ObjectRules* base;
};

/// What a reader asks of an object as a whole.
struct ObjectShape
{
    /// The text of "_type".
    std::string_view tag;
    /// What becomes of an object without "_type"; also of one with another, unless it is MemberIsSkipped: then the
    /// reader fails with "Invalid type X : tag expected".
    Otherwise withoutTag;
    /// The text with which the reader fails for {}; null when it does not.
    const char* emptyMessage;
    ObjectRules rules;
};

/// Collects the findings of one document. Values are given to it in the order in which the reader takes them.
class Inspection
{
public:
    /// Steps into a member or an element for the life of the object; `key` must live as long.
    class Step
    {
    public:
        Step(Inspection& inspection, std::string_view key) : inspection_(inspection)
        {
            inspection.path_.push_back(key);
        }
        ~Step() { inspection_.path_.pop_back(); }
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        Inspection& inspection_;
    };

    /// Keeps at most so many findings, and beyond that the first that the reader stops at of each kind.
    explicit Inspection(std::size_t maximum) : maximum_(maximum) {}

    void Report(FindingKind kind, ValueView value, std::string sentence, std::string readerMessage = {});
    void ReportFailure(ValueView value, std::string_view why, std::string readerMessage);

    /// An object in the shape, unknown members included.
    void Inspect(ValueView value, const ObjectShape& shape);
    void InspectMembers(ValueView object, const ObjectRules& rules);
    void InspectMember(ValueView object, const MemberRule& rule);
    /// The same, but only what ends the process is reported.
    void InspectForFatal(ValueView object, const ObjectRules& rules);
    /// The members of an object that no rule names, "_type" aside.
    void ReportUnknown(ValueView object, const ObjectRules& rules, std::string_view tag);

    /// The object whose member a check has been called for, until that goes on to another member.
    ValueView Object() const noexcept { return object_; }

    std::vector<Finding> TakeFindings() { return std::move(findings_); }

private:
    bool HasTag(ValueView object, const ObjectShape& shape);
    void ReportMissing(ValueView object, std::string_view key, const Otherwise& otherwise);
    void ReportWrongType(ValueView value, const MemberRule& rule);

    bool IsKept(FindingKind kind);
    std::string Pointer() const;

    std::size_t maximum_;
    bool onlyFatal_ = false;
    bool hasFailure_ = false;
    bool hasFatal_ = false;
    std::vector<Finding> findings_;
    std::vector<std::string_view> path_;
    ValueView object_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
