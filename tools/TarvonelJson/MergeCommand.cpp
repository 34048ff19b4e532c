#include <TarvonelJson/MergeCommand.h>

#include <TarvonelJson/Conversion.h>
#include <TarvonelJson/Input.h>
#include <TarvonelJson/InputFiles.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>

#include <json/value.h>

#include <memory>
#include <stdexcept>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::MediaIOToJsonConverter;

namespace
{

/// Its text is the whole message.
class MergeError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

void ThrowIfFailed(const TextResult& result, const SourceText& source)
{
    if (!result)
        throw MergeError(source.MessageStart(result.Position(), result.Pointer()) + result.ErrorMessage());
}

std::unique_ptr<MediaIO> MakeChannelFor(const SourceText& source)
{
    Json::Value document;
    ThrowIfFailed(ParseText(source.text, document), source);
    const auto kind = KindOf(document);
    if (kind == DocumentKind::MediaInput)
        return std::make_unique<MediaInput>();
    if (kind == DocumentKind::MediaOutput)
        return std::make_unique<MediaOutput>();
    throw MergeError(
        source.MessageStart(PositionOf(source.text, document.getOffsetStart()), "") +
        (kind ? "only channels can be merged: MediaInput or MediaOutput expected" : NoKindMessage(document)));
}

} // namespace

MergeCommand::MergeCommand(CLI::App& program)
    : Command(program, "merge", "Apply updates to a recorder or player channel and write the result",
              R"(Members that an update does not have keep their values. All updates are applied,
in the order given, or nothing is written.

Examples:
  tarvonel-json merge recorder.json recorder-update.json
  receive-update | tarvonel-json merge --pretty player.json -

Exit status: 0 the result was written, 1 it was not, 2 wrong usage.)")
{
    Arguments().add_option("BASE", base_, "The channel; - is standard input")->required()->type_name("");
    Arguments().add_option("UPDATE", updates_, "Documents to apply to it, of the same kind")->required()->type_name("");
    Arguments().add_flag("--pretty", isPretty_, "Indent the result instead of writing one line");
    Arguments().callback(
        [this]
        {
            auto names = updates_;
            names.push_back(base_);
            InputFiles::RequireOneStandardInput(names);
        });
}

ExitStatus MergeCommand::Run(Output& output) const
{
    std::unique_ptr<MediaIO> channel;
    auto names = updates_;
    names.insert(names.begin(), base_);
    for (const auto& name : names)
    {
        SourceText source;
        source.file = Input::DisplayName(name);
        try
        {
            const auto text = Input(name, [] {}).ReadAll();
            source.text = text;
            if (!channel)
                channel = MakeChannelFor(source);
            ThrowIfFailed(MergeText(text, *channel), source);
        }
        catch (const InputError& error)
        {
            Report(source.file + ": " + error.what());
            return ExitStatus::Failure;
        }
        catch (const MergeError& error)
        {
            Report(error.what());
            return ExitStatus::Failure;
        }
    }

    auto stringer = MakeStringer(isPretty_);
    if (const auto result = MediaIOToJsonConverter().To(*channel, stringer); !result)
    {
        Report(std::string("tarvonel-json: ") + result.ErrorMessage());
        return ExitStatus::Failure;
    }
    output.Write(stringer.ToString() + '\n');
    return ExitStatus::Success;
}

} // namespace TarvonelJson
