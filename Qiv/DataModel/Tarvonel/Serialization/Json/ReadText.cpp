#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/ReadDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/TextDocument.h>

#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

using Common::Serialization::Json::JsonObject;
using Common::Serialization::Json::Details::ValueView;

namespace
{

TextResult Read(std::string_view text, const ReadTarget& target, Details::ReadMode mode, const ReadOptions& options)
{
    Details::TextDocument document;
    if (auto failure = Details::ParseFor(options, text, document); !failure)
        return failure;
    return Details::ReadDocument(ValueView(document.Nodes(), document.Root()), text, target, mode, options);
}

ReadOptions OptionsOf(const TextLimits& limits)
{
    ReadOptions options;
    options.limits = limits;
    return options;
}

} // namespace

TextResult ParseText(std::string_view text, JsonObject& json, const TextLimits& limits)
{
    Details::TextDocument document;
    if (auto failure = document.Parse(text, limits))
    {
        auto result = Details::ParseFailure(text, std::move(*failure));
        json = JsonObject(); // not before: the text may lie in it
        return result;
    }
    auto parsed = Details::ToTree(document);
    json.swap(parsed);
    return {};
}

TextResult MergeText(std::string_view text, ReadTarget target, const TextLimits& limits)
{
    return Read(text, target, Details::ReadMode::Merge, OptionsOf(limits));
}

TextResult MergeText(std::string_view text, ReadTarget target, const ReadOptions& options)
{
    return Read(text, target, Details::ReadMode::Merge, options);
}

TextResult ReadSnapshotText(std::string_view text, ReadTarget target, const TextLimits& limits)
{
    return Read(text, target, Details::ReadMode::Snapshot, OptionsOf(limits));
}

TextResult ReadSnapshotText(std::string_view text, ReadTarget target, const ReadOptions& options)
{
    return Read(text, target, Details::ReadMode::Snapshot, options);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
