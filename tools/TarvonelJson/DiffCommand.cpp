#include <TarvonelJson/DiffCommand.h>

#include <TarvonelJson/Messages.h>
#include <TarvonelJson/Refusal.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/WriteUpdate.h>

#include <json/value.h>

#include <optional>
#include <string_view>
#include <utility>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Documents::AnyEntity;
using Documents::ChannelOf;
using Qiv::Common::Serialization::Json::Stringer;
using Qiv::DataModel::Tarvonel::MediaIOs::MediaIO;

namespace
{

/// Nothing for a document that is none of a channel, which is reported.
std::optional<AnyEntity> ReadChannel(const SourceText& source)
{
    auto result = Documents::ReadAnyText(source.text);
    if (!result)
    {
        Report(source, WhyNotRead(source, result));
        return std::nullopt;
    }
    if (ChannelOf(result.Entity()) == nullptr)
    {
        Report(source.MessageStart(), "only channels can be compared: MediaInput or MediaOutput expected");
        return std::nullopt;
    }
    return std::move(result).Entity();
}

/// Where the value at a pointer begins; where the document does when it has none there.
TextPosition PlaceOf(std::string_view pointer, const Json::Value& document, std::string_view text)
{
    const auto* value = &document;
    while (!pointer.empty())
    {
        pointer.remove_prefix(1);
        std::string key;
        for (; !pointer.empty() && pointer.front() != '/'; pointer.remove_prefix(1))
        {
            const bool isEscape = pointer.front() == '~' && pointer.size() > 1;
            if (isEscape)
                pointer.remove_prefix(1);
            key += !isEscape ? pointer.front() : pointer.front() == '0' ? '~' : '/';
        }
        value = value->isObject() ? value->find(key.data(), key.data() + key.size()) : nullptr;
        if (value == nullptr)
            return PositionOf(text, document.getOffsetStart());
    }
    return PositionOf(text, value->getOffsetStart());
}

} // namespace

DiffCommand::DiffCommand(CLI::App& program)
    : Command(program, "diff", "Write the update that takes a channel from one state to another",
              R"(The update has the members of AFTER that differ from BEFORE, and "_type" and "id";
merged into BEFORE it gives AFTER. What merging cannot bring about, such as a
sequence that is gone, is not in it and is told on standard error.
Exit status: 0 equal, 1 different, 2 trouble.
Examples:
  tarvonel-json diff player-before.json player.json
  tarvonel-json diff player-before.json player.json | tarvonel-json merge player-before.json -)")
{
    Arguments().add_option("BEFORE", before_, "The channel as it was; - is standard input")->required()->type_name("");
    Arguments().add_option("AFTER", after_, "The same channel as it is")->required()->type_name("");
    InputFiles::AddMaximumBytesTo(Arguments(), maximumBytes_);
    Arguments().add_flag("--pretty", isPretty_, "Indent the update instead of writing one line");
    Arguments().callback([this] { InputFiles::RequireOneStandardInput({before_, after_}); });
}

ExitStatus DiffCommand::Run(Output& output) const
{
    std::optional<AnyEntity> before;
    const auto readBefore = [&](const SourceText& source)
    {
        before = ReadChannel(source);
        return before ? ExitStatus::Success : ExitStatus::Trouble;
    };
    const auto compareAfter = [&](const SourceText& source) { return Compare(*ChannelOf(*before), source, output); };

    const auto status = InputFiles::ReadWhole(
        before_, maximumBytes_, [] {}, readBefore);
    return status != ExitStatus::Success ? status
                                         : InputFiles::ReadWhole(
                                               after_, maximumBytes_, [] {}, compareAfter);
}

ExitStatus DiffCommand::Compare(const MediaIO& before, const SourceText& source, Output& output) const
{
    const auto after = ReadChannel(source);
    if (!after)
        return ExitStatus::Trouble;

    auto stringer = isPretty_ ? Stringer::PrettyStringer() : Stringer();
    const auto result = Updates::WriteUpdate(before, *ChannelOf(*after), stringer);
    Json::Value document;
    static_cast<void>(ParseText(source.text, document)); // has been read
    const auto report = [&](std::string_view pointer, std::string_view sentence)
    { Report(source.MessageStart(PlaceOf(pointer, document, source.text), pointer), sentence); };

    if (!result.ErrorMessage().empty())
    {
        report(before.GetMode() == ChannelOf(*after)->GetMode() ? "/id" : "/_type", result.ErrorMessage());
        return ExitStatus::Trouble;
    }
    output.WriteJson(stringer.ToString());
    for (const auto& [pointer, sentence] : result.Omissions())
        report(pointer, sentence);
    return result.HasChanges() ? ExitStatus::Findings : ExitStatus::Success;
}

} // namespace TarvonelJson
