#include <Conversions.h>
#include <FuzzInput.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/HaveEqualContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <charconv>

using namespace Fuzz;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents;

namespace
{

constexpr std::size_t mostRemovals = 12; // keeps documents full of findings fast

struct Place
{
    Json::Value* parent = nullptr; // null for the document itself
    std::string key;
    Json::Value* value;
};

/// The value that a pointer names, by the rules of RFC 6901.
Place Find(Json::Value& document, std::string_view pointer)
{
    Place place{nullptr, "", &document};
    while (!pointer.empty())
    {
        Check(pointer.front() == '/', "a pointer has a slash before each step", pointer);
        pointer.remove_prefix(1);
        place.key.clear();
        for (; !pointer.empty() && pointer.front() != '/'; pointer.remove_prefix(1))
        {
            const bool isEscape = pointer.front() == '~';
            if (isEscape)
                pointer.remove_prefix(1);
            Check(!isEscape || (!pointer.empty() && (pointer[0] == '0' || pointer[0] == '1')), "escapes", pointer);
            place.key += !isEscape ? pointer.front() : pointer.front() == '0' ? '~' : '/';
        }
        place.parent = place.value;
        if (place.parent->isArray())
        {
            Json::ArrayIndex index = 0;
            const auto* const end = place.key.data() + place.key.size();
            Check(std::from_chars(place.key.data(), end, index).ptr == end && index < place.parent->size(),
                  "an index is one of the array", place.key);
            place.value = &(*place.parent)[index];
            continue;
        }
        Check(place.parent->isObject() && place.parent->isMember(place.key), "a pointer names a value", place.key);
        place.value = &(*place.parent)[place.key];
    }
    return place;
}

/// The document without the value; nothing when an object would be left empty, which readers refuse.
std::optional<Json::Value> Without(Json::Value document, const std::string& pointer)
{
    const auto place = Find(document, pointer);
    if (place.parent == nullptr || place.parent->size() == 1)
        return std::nullopt;
    Json::Value removed;
    if (place.parent->isArray())
        place.parent->removeIndex(static_cast<Json::ArrayIndex>(std::stoul(place.key)), &removed);
    else // with both ends: the form with a string ends at its first NUL
        place.parent->removeMember(place.key.data(), place.key.data() + place.key.size(), &removed);
    return document;
}

bool MayBeRemoved(FindingKind kind)
{
    return kind == FindingKind::UnknownMember || kind == FindingKind::Ignored || kind == FindingKind::WrongType;
}

void CheckForm(const std::vector<Finding>& findings, Json::Value document, std::string_view text)
{
    for (const auto& finding : findings)
    {
        static_cast<void>(Find(document, finding.pointer));
        bool isPrintable = !finding.sentence.empty() && WellFormed(finding.sentence) == finding.sentence;
        for (const char character : finding.sentence)
            isPrintable &= static_cast<unsigned char>(character) >= 0x20;
        Check(isPrintable, "a sentence is one printable line", finding.sentence);
        // A null that is dropped from the text stands one byte before its place, for jsoncpp.
        Check(finding.offset >= -1 && finding.offset <= static_cast<std::ptrdiff_t>(text.size()),
              "the offset is in the text", finding.sentence);
        const bool hasMessage = finding.kind == FindingKind::Failure || finding.kind == FindingKind::EndsProcess;
        Check(hasMessage == !finding.readerMessage.empty(), "a failure has a text", finding.sentence);
    }
}

template <typename Entity>
void Exercise(const Conversion<Entity>& conversion, DocumentKind kind, const std::optional<Json::Value>& document,
              std::string_view text, bool isFilled)
{
    if (!document)
        return;
    const auto findings = InspectDocument(*document, kind);
    CheckForm(findings, *document, text);
    if (FirstFatal(findings) != nullptr)
        return;

    const auto* const failure = FirstFailure(findings);
    auto entity = Target<Entity>(isFilled);
    const auto result = conversion.read(*document, entity);
    Check(failure != nullptr ? !result && failure->readerMessage.c_str() == std::string(result.ErrorMessage())
                             : bool(result),
          "the inspection tells what the reader says", failure != nullptr ? failure->readerMessage : "success",
          Message(result));

    auto whole = Target<Entity>(isFilled);
    Check(Message(MergeWhole(*document, whole)) == Message(result), "whole reading gives the same result");
    const auto unchanged = Target<Entity>(isFilled);
    Check(AreAlike(conversion, whole, result ? entity : unchanged), "whole reading is all or nothing");
    if (!result)
        return;

    std::size_t removals = 0;
    for (const auto& finding : findings)
    {
        if (!MayBeRemoved(finding.kind) || ++removals > mostRemovals)
            continue;
        const auto smaller = Without(*document, finding.pointer);
        if (!smaller)
            continue;
        auto other = Target<Entity>(isFilled);
        Check(conversion.read(*smaller, other), "what is skipped does not keep the reader from success",
              finding.pointer, finding.sentence);
        Check(AreAlike(conversion, other, entity), "what is skipped changes nothing", finding.pointer,
              finding.sentence);
    }
}

/// A document of whatever kind it names: from text as from a value, and with an opinion only when nothing is lost.
void ExerciseAny(std::string_view text)
{
    Json::Value document;
    if (!ParseText(text, document))
        return;
    const auto findings = InspectDocument(document);
    const auto fromText = ReadAnyText(text);
    const auto fromJson = ReadAny(document);
    Check(fromText.ErrorMessage() == fromJson.ErrorMessage() && fromText.Pointer() == fromJson.Pointer(),
          "a text is refused as its document is", fromText.ErrorMessage(), fromJson.ErrorMessage());
    Check(bool(fromText) == (FirstFatal(findings) == nullptr && FirstFailure(findings) == nullptr),
          "the inspection tells what is refused", fromText.ErrorMessage());
    Check(!fromText || HaveEqualContent(fromText.Entity(), fromJson.Entity()), "a text is read as its document is");
    ReadOptions strict;
    strict.refuse = FindingKinds::All();
    Check(bool(ReadAnyText(text, strict)) == findings.empty(), "what is taken with an opinion loses nothing");
}

} // namespace

/// The inspection of any document against the reader, and reading of any kind.
///
/// The first byte says what the document should be, the second how to parse and into what; the text follows.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const auto kind = static_cast<DocumentKind>(input.Byte() % 6);
    const auto flags = input.Byte();
    const ExactCopy copy(input.Rest());
    const auto text = copy.Text();
    const auto document = Parse(text, static_cast<Parsing>(flags % 3));
    const bool isFilled = (flags & 4U) != 0;
    ExerciseAny(text);
    WithConversion(kind, [&](const auto& conversion) { Exercise(conversion, kind, document, text, isFilled); });
    return 0;
}
