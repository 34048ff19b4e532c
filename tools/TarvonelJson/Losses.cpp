#include <TarvonelJson/Losses.h>

#include <TarvonelJson/Messages.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>

#include <json/value.h>

#include <string>

#include <string.h>

namespace TarvonelJson
{

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;

void Losses::Count(std::size_t members, std::size_t timeCodes, bool areAll)
{
    areAllMembers_ = areAllMembers_ && areAll;
    members_ += static_cast<std::int64_t>(members);
    documentsOfMembers_ += members > 0 ? 1 : 0;
    timeCodes_ += static_cast<std::int64_t>(timeCodes);
    documentsOfTimeCodes_ += timeCodes > 0 ? 1 : 0;
}

void Losses::Report() const
{
    const auto inDocuments = [](std::int64_t count)
    { return " in " + std::to_string(count) + (count == 1 ? " document " : " documents "); };
    if (members_ > 0)
        TarvonelJson::Report((areAllMembers_ ? "" : "at least ") + std::to_string(members_) +
                             (members_ == 1 ? " member" : " members") + inDocuments(documentsOfMembers_) +
                             (members_ == 1 ? "was" : "were") +
                             " skipped or replaced by a default; run check to see them");
    if (timeCodes_ > 0)
        TarvonelJson::Report(std::to_string(timeCodes_) + (timeCodes_ == 1 ? " time code" : " time codes") +
                             " without date" + inDocuments(documentsOfTimeCodes_) + (timeCodes_ == 1 ? "is" : "are") +
                             " written in a form that no reader takes");
}

std::size_t CountLostTimeCodes(std::string_view written)
{
    // The form begins so; what only looks like it is told from it by the inspection. memmem looks at few of the bytes.
    constexpr std::string_view start = "\"-1-0-1-0-1T";
    if (memmem(written.data(), written.size(), start.data(), start.size()) == nullptr)
        return 0;
    Json::Value document;
    return ParseText(written, document) ? InspectDocument(document).size() : 0;
}

} // namespace TarvonelJson
