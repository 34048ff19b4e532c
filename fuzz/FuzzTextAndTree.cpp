#include <Conversions.h>
#include <FuzzInput.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextPosition.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <algorithm>
#include <tuple>

using namespace Fuzz;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;

namespace
{

/// Members that no reader knows are found in the order of the text there, and in that of their names in a tree.
std::vector<Finding> InOneOrder(std::vector<Finding> findings)
{
    std::stable_sort(findings.begin(), findings.end(),
                     [](const auto& left, const auto& right) { return left.pointer < right.pointer; });
    return findings;
}

bool AreEqual(const Finding& left, const Finding& right)
{
    const auto all = [](const Finding& finding)
    { return std::tie(finding.pointer, finding.kind, finding.sentence, finding.readerMessage, finding.offset); };
    return all(left) == all(right);
}

/// What reading the text must report, as the inspection of its tree has it; null for a success.
const Finding* FirstStop(const std::vector<Finding>& findings)
{
    const auto* const failure = FirstFailure(findings);
    const auto* const fatal = FirstFatal(findings);
    return failure == nullptr || (fatal != nullptr && fatal < failure) ? fatal : failure;
}

void CheckFailure(const TextResult& result, const Finding* stop, std::string_view text)
{
    if (stop == nullptr)
    {
        Check(bool(result), "what nothing stops is read", text, result.ErrorMessage());
        return;
    }
    const auto position = PositionOf(text, stop->offset);
    Check(!result && result.Pointer() == stop->pointer && result.Position().line == position.line &&
              result.Position().column == position.column,
          "a failure is where its finding is", text, stop->pointer);
    Check(result.Sentence() == stop->sentence, "a failure is told as its finding", stop->sentence, result.Sentence());
    // Results of readers end at a NUL.
    Check(result.ErrorMessage() ==
              (stop->kind == FindingKind::EndsProcess ? stop->sentence : stop->readerMessage).c_str(),
          "a reader's own text is unchanged", result.ErrorMessage());
}

/// Which way an input goes.
struct Way
{
    bool isFilled;
    bool isUpdate;
    bool hasFindings;
};

template <typename Entity>
void Exercise(const Conversion<Entity>& conversion, DocumentKind kind, std::string_view text, const Json::Value& tree,
              const Way& way)
{
    std::vector<Finding> findings;
    ReadOptions options;
    options.findings = way.hasFindings ? &findings : nullptr;
    options.maximumFindings = mostFindings;
    auto entity = Target<Entity>(way.isFilled);
    const auto result = way.isUpdate ? MergeText(text, entity, options) : ReadSnapshotText(text, entity, options);

    const auto found = InspectDocument(tree, kind);
    CheckFailure(result, FirstStop(found), text);
    if (way.hasFindings)
    {
        const auto expected = InOneOrder(found);
        findings = InOneOrder(std::move(findings));
        Check(std::equal(findings.begin(), findings.end(), expected.begin(), expected.end(),
                         [](const auto& left, const auto& right) { return AreEqual(left, right); }),
              "the same is found", text);
    }

    auto ofTree = Target<Entity>(way.isFilled);
    if (FirstFatal(found) == nullptr)
    {
        const auto resultOfTree = way.isUpdate ? MergeWhole(tree, ofTree) : ReadSnapshot(tree, ofTree);
        Check(bool(result) == bool(resultOfTree) && result.ErrorMessage() == resultOfTree.ErrorMessage(),
              "the results are the same", result.ErrorMessage(), Message(resultOfTree));
    }
    Check(AreAlike(conversion, entity, ofTree), "the entities are the same", text);
    Check(bool(result) || AreSame(entity, Target<Entity>(way.isFilled)), "what is refused changes nothing", text);
}

/// A text that ParseText refuses is refused by the others for the same reason.
void CheckRefused(std::string_view text, const TextResult& expected)
{
    Speed speed(7, 11);
    const auto result = MergeText(text, speed);
    Check(!result && speed == Speed(7, 11), "what is no JSON is not read", text);
    Check(result.Sentence() == expected.Sentence() && result.Position().line == expected.Position().line &&
              result.Position().column == expected.Position().column,
          "what is no JSON is refused for one reason", expected.Sentence(), result.Sentence());
}

} // namespace

/// Reading from a text against reading from its tree: that of ParseText, or that of jsoncpp.
///
/// The first byte says what the document should be, the second how and into what to read; the text follows.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    const auto kind = static_cast<DocumentKind>(input.Byte() % 6);
    const auto flags = input.Byte();
    const ExactCopy copy(input.Rest());
    const auto text = copy.Text();
    Json::Value tree;
    if (const auto result = ParseText(text, tree); !result)
    {
        CheckRefused(text, result);
        return 0;
    }
    if ((flags & 8U) != 0)
    {
        const auto ofJsoncpp = Parse(text, Parsing::Strict);
        Check(ofJsoncpp.has_value(), "jsoncpp takes what is read", text);
        tree = *ofJsoncpp;
    }

    const Way way{(flags & 1U) != 0, (flags & 2U) != 0, (flags & 4U) != 0};
    WithConversion(kind, [&](const auto& conversion) { Exercise(conversion, kind, text, tree, way); });
    return 0;
}
