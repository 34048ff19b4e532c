#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Finding.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// How tables describe the JSON form of entities, and the walk over a document that compares it with them.
namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using Common::Serialization::Json::JsonObject;

class Inspection;

/// What the reader asks a member to be; anything else is skipped.
enum class Type
{
    Text,
    Integer,
    Boolean,
    Array,
    Object,
    Nanoseconds, ///< a text or an integer of 64 bits
    Any,         ///< anything but null
};

/// One member of an object, in a table that lists them in the order in which the reader takes them.
struct Member
{
    std::string_view key;
    Type type;
    /// Inspects the value when it is of the type; null when the reader asks nothing else.
    void (*check)(Inspection&, const JsonObject&) = nullptr;
    /// What becomes of an object without a usable member of this key: null for nothing, `objectIsSkipped`, or the text
    /// with which the reader fails.
    const char* without = nullptr;
};

/// Told from other texts by its address.
inline constexpr char objectIsSkipped[] = "";

/// The members that an entity adds to those of its base.
struct Members
{
    template <std::size_t size>
    constexpr Members(const Member (&members)[size], const Members* theBase = nullptr)
        : first(members), count(size), base(theBase)
    {
    }

    const Member* begin() const noexcept { return first; }
    const Member* end() const noexcept { return first + count; }

    const Member* first;
    std::size_t count;
    const Members* base;
};

/// The JSON form of an entity as an object.
struct Shape
{
    /// The text of "_type", and what becomes of an object with another: as for `Member::without`, and for null the
    /// reader's failure "Invalid type X : tag expected".
    std::string_view tag;
    const char* withoutTag;
    /// The text with which the reader fails for {}; null when it does not.
    const char* empty;
    Members members;
};

/// Collects the findings of one document. Values are given to it in the order in which the reader takes them.
class Inspection
{
public:
    /// Steps into a member or an element for the life of the object.
    class Step
    {
    public:
        Step(Inspection& inspection, std::string_view key);
        ~Step() { inspection_.pointer_.resize(length_); }
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        Inspection& inspection_;
        std::size_t length_;
    };

    void Report(FindingKind kind, const JsonObject& value, std::string sentence, std::string readerMessage = {});
    void ReportFailure(const JsonObject& value, std::string_view why, std::string readerMessage);

    /// An object in the shape, unknown members included.
    void Inspect(const JsonObject& value, const Shape& shape);
    /// The members that a table lists.
    void InspectMembers(const JsonObject& object, const Members& members);
    void InspectMember(const JsonObject& object, const Member& member);
    /// The same, but only what ends the process is reported.
    void InspectForFatal(const JsonObject& object, const Members& members);
    /// The members of an object that no table lists, "_type" aside.
    void ReportUnknown(const JsonObject& object, const Members& members, std::string_view tag);

    std::vector<Finding> TakeFindings() { return std::move(findings_); }

private:
    bool HasTag(const JsonObject& object, const Shape& shape);
    void ReportMissing(const JsonObject& object, std::string_view key, const char* without);
    void ReportWrongType(const JsonObject& object, const JsonObject& value, const Member& member);

    std::vector<Finding> findings_;
    std::string pointer_;
};

/// The member, null ones included; a null pointer when the object does not have it.
inline const JsonObject* FindRaw(const JsonObject& object, std::string_view key)
{
    return object.find(key.data(), key.data() + key.size());
}

/// The name of the member at which an iterator of an object stands.
std::string_view NameOf(const JsonObject::const_iterator& member);

/// A text of the document for a sentence: quoted, escaped, and cut when it is long.
std::string Quote(std::string_view text, std::size_t longest = 60);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
