#pragma once

#include <Qiv/Common/Serialization/Json/JsonObject.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/Nodes/Node.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/ApplyResult.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadOptions.h>

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string_view>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
{

/// The state of servers as their documents tell it: nodes, and recorder and player channels, each by its identifier.
///
///     Mirror mirror;
///     while (std::getline(stream, line))
///         if (const auto result = mirror.Apply(line); !result)
///             std::cerr << result.ErrorMessage() << '\n';
///         else if (result.Effect() != Effect::Unchanged)
///             std::cout << result.Id() << ' ' << ToString(result.Effect()) << '\n';
///
/// Channels of both kinds share one space of identifiers; nodes have their own.
///
/// A document is applied whole or not at all. Refused, with nothing changed: a text that is no JSON; a document of
/// another kind, or of none; one without identifier, or with an empty one; a channel of another kind than the one with
/// that identifier; and what fails when it is read, or would end the process. The result tells the text of the reader
/// where a reader would fail.
///
/// Any number of threads may use the const operations at once, or one thread the others. There are no observers: what
/// has happened is in the return value. Throws nothing but std::bad_alloc, which may leave a mixture of old and new
/// members in the channel of the document. A stream that fails, for want of memory too, tells so itself, by `bad()`.
class QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT Mirror
{
public:
    Mirror();
    Mirror(const Mirror&) = delete;
    /// A moved-from mirror can be assigned to and destroyed, and nothing else.
    Mirror(Mirror&&) noexcept;
    Mirror& operator=(const Mirror&) = delete;
    Mirror& operator=(Mirror&&) noexcept;
    ~Mirror();

    /// Merges an update, or a first document, into the channel with its identifier, which is made when there is none.
    /// Members that the document does not have keep their values. A node is replaced, as its reader does. The options
    /// may refuse more, and ask for the findings.
    ApplyResult Apply(const Common::Serialization::Json::JsonObject& document, const ReadOptions& options = {});
    /// The same from a text, parsed as by `MergeText`.
    template <typename Text>
    ForText<Text, ApplyResult> Apply(const Text& text, const ReadOptions& options = {})
    {
        return ApplyText(text, options);
    }

    /// The same, but what the document does not have is at its default afterwards.
    ApplyResult ApplySnapshot(const Common::Serialization::Json::JsonObject& document, const ReadOptions& options = {});
    template <typename Text>
    ForText<Text, ApplyResult> ApplySnapshot(const Text& text, const ReadOptions& options = {})
    {
        return ApplySnapshotText(text, options);
    }

    /// The entity with an identifier, null when there is none; valid until the mirror is changed.
    const Tarvonel::MediaIOs::MediaIO* FindChannel(std::string_view id) const;
    const Tarvonel::Nodes::Node* FindNode(std::string_view id) const;

    /// False when there is none.
    bool RemoveChannel(std::string_view id);
    bool RemoveNode(std::string_view id);

    /// All of them in ascending byte-wise order of their identifiers.
    std::vector<const Tarvonel::MediaIOs::MediaIO*> Channels() const;
    std::vector<const Tarvonel::Nodes::Node*> Nodes() const;

    /// Writes the nodes and then the channels, each in a line of its own (NDJSON), in the order of their identifiers.
    /// What the writers lose is lost: the times of time codes without date, texts from their first NUL on, a negative
    /// operator index. Entities whose identifiers are the same up to a NUL are one when they are read again.
    void WriteAll(std::ostream& stream) const;

    /// What has become of the lines of a stream.
    struct LineCounts
    {
        std::size_t created = 0;
        std::size_t changed = 0;
        std::size_t unchanged = 0;
        std::size_t refused = 0;
    };
    /// Applies each line as a snapshot; blank lines are passed over. Entities that no line names stay.
    ///
    /// @param onLine  called with the number of each line that is not blank, counted from 1, and its result; what it
    ///                throws passes through, and the lines up to there stay applied
    LineCounts ReadAll(std::istream& stream,
                       const std::function<void(std::size_t line, const ApplyResult& result)>& onLine = {});

private:
    class State;

    ApplyResult ApplyText(std::string_view text, const ReadOptions& options);
    ApplyResult ApplySnapshotText(std::string_view text, const ReadOptions& options);

    std::unique_ptr<State> state_; // null when moved from
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
