// Applies updates to a recorder channel, each whole or not at all: MergeUpdate SNAPSHOT UPDATE
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaInputConverter.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents;
using namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json;
using Qiv::DataModel::Tarvonel::MediaIOs::MediaInput;

namespace
{

std::string Contents(const char* path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Report(const char* what, const TextResult& result)
{
    std::cout << what << ": ";
    if (result)
        std::cout << "applied\n";
    else
        std::cout << "refused at line " << result.Position().line << ", column " << result.Position().column << ", "
                  << (result.Pointer().empty() ? "the document" : result.Pointer()) << ": " << result.ErrorMessage()
                  << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;

    MediaInput recorder;
    Report("snapshot", ReadSnapshotText(Contents(argv[1]), recorder)); // what the text lacks is empty afterwards
    Report("update", MergeText(Contents(argv[2]), recorder));          // what the text lacks stays

    // The name comes before the member that fails. A plain reader would have applied it.
    const std::string bad = R"({"_type": "MediaInput", "name": "lost",
 "lastTimePoint": {"_type": "TimePoint", "value": "soon"}})";
    Report("bad update", MergeText(bad, recorder));

    auto plain = recorder;
    Json::Value json;
    if (ParseText(bad, json))
        std::cout << "plain reader: " << JsonToMediaInputConverter().To(json, plain).ErrorMessage() << ", name now \""
                  << plain.Name() << "\"\n";

    std::cout << ToText(recorder, Layout::Pretty) << '\n';
}
