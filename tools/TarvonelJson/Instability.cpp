#include <TarvonelJson/Instability.h>

#include <TarvonelJson/Printable.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <json/value.h>
#include <json/writer.h>

#include <string>
#include <string_view>
#include <utility>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Qiv::Common::Serialization::Json::JsonObject;

namespace
{

std::string InShort(const JsonObject& value)
{
    Json::StreamWriterBuilder writer;
    writer["indentation"] = "";
    return Shortened(Json::writeString(writer, value));
}

std::string PointerToken(const std::string& key)
{
    std::string token = "/";
    for (const auto character : key)
        token += character == '~' ? "~0" : character == '/' ? "~1" : std::string(1, character);
    return token;
}

const JsonObject* Member(const JsonObject* object, const std::string& key)
{
    return object != nullptr && object->isObject() ? object->find(key.data(), key.data() + key.size()) : nullptr;
}

/// Walks through what was written and what that was converted to, beside the document for the places.
class Comparison
{
public:
    explicit Comparison(const JsonObject& document) : document_(document) {}

    void Compare(const JsonObject& written, const JsonObject& again, const JsonObject* inDocument,
                 const std::string& pointer)
    {
        if (written == again)
            return;
        if (!written.isObject() || !again.isObject())
            return Report(written, &again, inDocument, pointer);
        for (const auto& key : written.getMemberNames())
        {
            const auto* const member = Member(&again, key);
            const auto* const place = Member(inDocument, key);
            if (member != nullptr)
                Compare(written[key], *member, place != nullptr ? place : inDocument, pointer + PointerToken(key));
            else
                Report(written[key], nullptr, place != nullptr ? place : inDocument, pointer + PointerToken(key));
        }
    }

    void Report(std::string sentence, const JsonObject& place, std::string pointer)
    {
        findings_.push_back(
            {{}, std::move(pointer), "unstable", std::move(sentence), "", Level::Any, place.getOffsetStart()});
    }

    std::vector<CheckedFinding> TakeFindings() { return std::move(findings_); }

private:
    void Report(const JsonObject& written, const JsonObject* again, const JsonObject* inDocument,
                const std::string& pointer)
    {
        Report("is written as " + InShort(written) + ", which another conversion " +
                   (again != nullptr ? "writes as " + InShort(*again) : "leaves out"),
               inDocument != nullptr ? *inDocument : document_, pointer);
    }

    const JsonObject& document_;
    std::vector<CheckedFinding> findings_;
};

} // namespace

std::vector<CheckedFinding> FindInstability(std::string_view text, const Documents::AnyEntity& entity)
{
    const auto written = Documents::ToText(entity);
    if (written == text)
        return {};
    const auto reread = Documents::ReadAnyText(written);
    const auto again = reread ? Documents::ToText(reread.Entity()) : std::string();
    JsonObject document;
    JsonObject first;
    JsonObject second;
    if (again == written || !ParseText(text, document) || !ParseText(written, first))
        return {};
    Comparison comparison(document);
    if (!reread)
        comparison.Report("is written so that it can't be read again: " + reread.ErrorMessage(), document,
                          reread.Pointer());
    else if (ParseText(again, second))
        comparison.Compare(first, second, &document, "");
    return comparison.TakeFindings();
}

} // namespace TarvonelJson
