#include <Changes.h>
#include <Entities.h>
#include <FuzzInput.h>
#include <Json.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/HaveEqualContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Mirror.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/WriteUpdate.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <json/value.h>
#include <json/writer.h>

#include <algorithm>
#include <map>
#include <memory>
#include <numeric>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Fuzz;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates;
using Qiv::BusinessEntityModel::BaseTypes::Identifier;
using Qiv::Common::Serialization::Json::Stringer;
using Qiv::DataModel::Tarvonel::MediaIOs::MediaIO;

namespace
{

using Channel = std::unique_ptr<MediaIO>;

Channel NewChannel(MediaIO::Mode mode)
{
    return mode == MediaIO::Mode::Input ? Channel(std::make_unique<MediaInput>()) : std::make_unique<MediaOutput>();
}

Channel Merged(const MediaIO& before, const std::string& update)
{
    auto channel = IndependentCopy(before);
    const auto result = MergeText(update, *channel);
    Check(bool(result), "an update is read", update, result.ErrorMessage());
    return channel;
}

/// No member of an update, and no key of its metadata, can be left out.
void CheckSmallest(const MediaIO& before, const MediaIO& merged, const std::string& update)
{
    Json::Value document;
    Check(bool(ParseText(update, document)), "an update can be parsed", update);
    const auto check = [&](const Json::Value& without, const std::string& key)
    {
        const auto text = Json::writeString(Json::StreamWriterBuilder(), without);
        Check(!HaveEqualContent(*Merged(before, text), merged), "no member of an update is there in vain", update, key);
    };
    for (const auto& key : document.getMemberNames())
    {
        auto without = document;
        without.removeMember(key);
        if (key != "_type" && key != "id")
            check(without, key);
    }
    for (const auto& key : document["metadata"].getMemberNames())
    {
        auto without = document;
        without["metadata"].removeMember(key);
        check(without, key);
    }
}

/// What holds of every update. Returns what it could not say.
std::vector<Omission> CheckUpdate(const MediaIO& before, const MediaIO& after)
{
    const auto textBefore = ToText(before);
    const auto textAfter = ToText(after);
    Stringer stringer;
    const auto result = WriteUpdate(before, after, stringer);
    const auto update = stringer.ToString();
    if (before.GetMode() != after.GetMode() || before.Id() != after.Id())
    {
        Check(!result && !result.ErrorMessage().empty() && update.empty(), "states of two channels are refused",
              update);
        return {};
    }
    Check(result.ErrorMessage().empty(), "states of one channel are compared", result.ErrorMessage());
    Check(IsStrictJson(update), "an update is JSON", update);
    Check(ToText(before) == textBefore && ToText(after) == textAfter, "comparing changes nothing", textBefore,
          textAfter);

    const auto& omissions = result.Omissions();
    const auto merged = Merged(before, update);
    const auto textMerged = ToText(*merged);
    Check((textMerged == textAfter) == omissions.empty(), "merging gives the later state unless something is left out",
          update, textMerged + '\n' + textAfter);
    Check(bool(result) == omissions.empty(), "the result tells whether something is left out", update);
    Check(result.HasChanges() == (textBefore != textAfter), "states differ when their documents do", textBefore,
          textAfter);
    Check(result.HasChanges() || textMerged == textBefore, "an update without changes changes nothing", update);
    for (const auto& omission : omissions)
        Check(!omission.sentence.empty() && omission.sentence.back() != '.' && omission.pointer[0] == '/',
              "what is left out has a place and a sentence", omission.pointer, omission.sentence);
    CheckSmallest(before, *merged, update);
    return omissions;
}

/// States that were read can differ in little that merging cannot bring about.
void CheckOmissionsOfDocuments(const std::vector<Omission>& omissions)
{
    for (const auto& omission : omissions)
        Check(omission.sentence.find(" is gone, and merging never removes one") != std::string::npos ||
                  omission.sentence.find("the text has a NUL") == 0,
              "states that were read differ in what updates can say", omission.pointer, omission.sentence);
}

/// Two states made by setters.
void ExerciseUpdates(Input& input)
{
    const auto flags = input.Byte();
    auto before = NewChannel(static_cast<MediaIO::Mode>(flags % 2));
    if ((flags & 2U) != 0 && flags % 2 == 0)
        Fill(static_cast<MediaInput&>(*before));
    else if ((flags & 2U) != 0)
        Fill(static_cast<MediaOutput&>(*before));
    before->Id(Identifier(std::string(input.Text(flags / 64U))));
    for (auto count = (flags >> 2U) % 4; count > 0; --count)
        Change(*before, input);

    auto after = IndependentCopy(*before);
    const auto kind = (flags >> 4U) % 4;
    if (kind == 1)
        after = NewChannel(static_cast<MediaIO::Mode>(input.Byte() % 2));
    if (kind == 2)
        after->Id(Identifier("b"));
    while (!input.IsEmpty())
        Change(*after, input);
    CheckUpdate(*before, *after);
    CheckUpdate(*after, *before);
}

/// How a document is applied to a mirror.
struct Way
{
    bool isSnapshot;
    bool isTree; ///< without positions, and with findings in another order
    const ReadOptions& options;
};

std::string Told(const std::vector<Finding>& findings, const Way& way)
{
    std::vector<std::string> lines;
    for (const auto& finding : findings)
        lines.push_back(finding.pointer + ' ' + finding.sentence + '\n');
    if (way.isTree)
        std::sort(lines.begin(), lines.end());
    return std::accumulate(lines.begin(), lines.end(), std::string());
}

bool AreSame(const TextResult& left, const TextResult& right, const Way& way)
{
    const auto place = [](const TextResult& result)
    { return std::pair(result.Position().line, result.Position().column); };
    return bool(left) == bool(right) && left.ErrorMessage() == right.ErrorMessage() &&
           left.Sentence() == right.Sentence() && left.Pointer() == right.Pointer() &&
           (way.isTree || place(left) == place(right));
}

Channel CopyOf(const MediaIO& channel)
{
    return IndependentCopy(channel);
}

std::unique_ptr<Node> CopyOf(const Node& node)
{
    return std::make_unique<Node>(node);
}

/// What a mirror holds, kept with the functions for single documents.
class Model
{
public:
    /// Applies a document to the model as it was to the mirror, and checks what that has reported.
    void Apply(std::string_view text, const Way& way, const ApplyResult& reported)
    {
        Json::Value document;
        const auto parsed = ParseText(text, document);
        const auto kind = KindOf(document);
        const std::string id(IdOf(document));
        Fuzz::Check(reported.Kind() == kind && reported.Id() == id, "kind and identifier are told", text,
                    reported.Id());

        std::vector<Finding> findings;
        auto options = way.options;
        options.findings = &findings;
        if (!parsed)
            CheckReported(reported, parsed, Effect::Refused, way, text);
        else if (id.empty())
        {
            const auto any = ReadAnyText(text, options); // for the findings, and for the failure when there is no kind
            Fuzz::Check(reported.Effect() == Effect::Refused, "a document without identifier is refused", text);
            if (!kind)
                CheckReported(reported, any, Effect::Refused, way, text);
        }
        else if (*kind == DocumentKind::Node)
            ApplyTo(nodes, id, std::make_unique<Node>(), text, way, options, reported);
        else
            ApplyTo(channels, id,
                    NewChannel(*kind == DocumentKind::MediaInput ? MediaIO::Mode::Input : MediaIO::Mode::Output), text,
                    way, options, reported);
        if (way.options.findings != nullptr)
            Fuzz::Check(Told(*way.options.findings, way) == Told(findings, way), "the same is found", text,
                        Told(*way.options.findings, way));
    }

    void Check(const Mirror& mirror) const
    {
        std::string all;
        const auto check = [&all](const auto& expected, const auto& held, const auto& find)
        {
            Fuzz::Check(expected.size() == held.size(), "a mirror holds as many entities as were made");
            auto entity = held.begin();
            for (const auto& [id, own] : expected)
            {
                Fuzz::Check(find(id) == *entity, "entities are listed in the order of their identifiers", id);
                Fuzz::Check(ToText(**entity) == ToText(*own), "a mirror holds what was applied", ToText(**entity),
                            ToText(*own));
                all += ToText(*own) + '\n';
                ++entity;
            }
        };
        check(nodes, mirror.Nodes(), [&](const std::string& id) { return mirror.FindNode(id); });
        check(channels, mirror.Channels(), [&](const std::string& id) { return mirror.FindChannel(id); });
        std::ostringstream stream;
        mirror.WriteAll(stream);
        Fuzz::Check(stream.str() == all, "all is written, nodes first", stream.str(), all);
    }

    std::map<std::string, Channel> channels;
    std::map<std::string, std::unique_ptr<Node>> nodes;

private:
    static void CheckReported(const ApplyResult& reported, const TextResult& expected, Effect effect, const Way& way,
                              std::string_view text)
    {
        Fuzz::Check(AreSame(reported, expected, way), "the reader's result is told", text, reported.ErrorMessage());
        Fuzz::Check(reported.Effect() == effect, "the effect is that on the content", text,
                    ToString(reported.Effect()));
    }

    template <typename Entity>
    static void ApplyTo(std::map<std::string, std::unique_ptr<Entity>>& entities, const std::string& id,
                        std::unique_ptr<Entity> entity, std::string_view text, const Way& way,
                        const ReadOptions& options, const ApplyResult& reported)
    {
        const auto before = entities.find(id);
        const bool isKnown = before != entities.end();
        if (isKnown)
            entity = CopyOf(*before->second);
        const auto result =
            way.isSnapshot ? ReadSnapshotText(text, *entity, options) : MergeText(text, *entity, options);
        const auto effect = !result                                      ? Effect::Refused
                            : !isKnown                                   ? Effect::Created
                            : HaveEqualContent(*before->second, *entity) ? Effect::Unchanged
                                                                         : Effect::Changed;
        CheckReported(reported, result, effect, way, text);
        if (!result)
            return;
        if constexpr (std::is_same_v<Entity, MediaIO>)
            if (isKnown)
                CheckOmissionsOfDocuments(CheckUpdate(*before->second, *entity));
        entities[id] = std::move(entity);
    }
};

/// The document of one line, with a head in front of its members for three out of four.
std::string DocumentFrom(Input& input, unsigned head, const std::string& id)
{
    constexpr const char* tags[] = {"", "MediaInput", "MediaOutput", "Node"};
    const std::string line(input.Line());
    if (head == 0)
        return line;
    return R"({"_type":")" + std::string(tags[head]) + R"(","id":")" + id + '"' + (line.empty() ? "" : ",") + line +
           '}';
}

void ExerciseMirror(Input& input)
{
    Mirror mirror;
    Model model;
    while (!input.IsEmpty())
    {
        const auto kind = input.Byte() % 16;
        const auto flags = input.Byte();
        const auto id = std::to_string(input.Byte() % 32);
        if (kind == 0)
        {
            Check(mirror.RemoveChannel(id) == (model.channels.erase(id) != 0), "a channel is removed", id);
            continue;
        }
        if (kind == 1)
        {
            Check(mirror.RemoveNode(id) == (model.nodes.erase(id) != 0), "a node is removed", id);
            continue;
        }
        const auto text = DocumentFrom(input, flags % 4, id);
        if (kind == 2)
        {
            std::istringstream stream(text + "\n \t\r\n" + text);
            std::size_t lines = 0;
            const auto counts = mirror.ReadAll(stream,
                                               [&](std::size_t line, const ApplyResult& result)
                                               {
                                                   lines += line;
                                                   model.Apply(text, {true, false, {}}, result);
                                               });
            const auto expected = text.find_first_not_of(" \t\r") == std::string::npos ? 0U : 2U;
            Check(counts.created + counts.changed + counts.unchanged + counts.refused == expected &&
                      lines == 2 * expected,
                  "each line is applied and counted", text);
            continue;
        }

        std::vector<Finding> findings(1);
        ReadOptions options;
        options.findings = (flags & 4U) != 0 ? &findings : nullptr;
        options.expectedId = Identifier((flags & 8U) != 0 ? "1" : "");
        Json::Value tree;
        const Way way{(flags & 16U) != 0, (flags & 32U) != 0 && ParseText(text, tree), options};
        if (way.isTree)
        {
            model.Apply(text, way, way.isSnapshot ? mirror.ApplySnapshot(tree, options) : mirror.Apply(tree, options));
            continue;
        }
        options.refuse = (flags & 64U) != 0 ? FindingKinds::All() : FindingKinds();
        options.maximumFindings = (flags & 128U) != 0 ? 1 : options.maximumFindings;
        model.Apply(text, way, way.isSnapshot ? mirror.ApplySnapshot(text, options) : mirror.Apply(text, options));
    }
    model.Check(mirror);
}

} // namespace

/// Updates between any two states of a channel, and a mirror against a plain model of one.
///
/// The first byte says which. Of the mirror, each operation has three bytes and the rest of its line.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    if (input.Byte() % 2 == 0)
        ExerciseUpdates(input);
    else
        ExerciseMirror(input);
    return 0;
}
