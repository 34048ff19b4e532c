// Reads a channel of either kind from a file, after asking whether that is safe: ReadChannel FILE
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaIOConverter.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>

using namespace Qiv::DataModel::Tarvonel;
using namespace Qiv::DataModel::Tarvonel::Serialization::Json;

namespace
{

std::unique_ptr<MediaIOs::MediaIO> MakeChannel(const Json::Value& document)
{
    const auto kind = KindOf(document);
    if (kind == DocumentKind::MediaInput)
        return std::make_unique<MediaIOs::MediaInput>();
    if (kind == DocumentKind::MediaOutput)
        return std::make_unique<MediaIOs::MediaOutput>();
    return nullptr;
}

void Print(const MediaIOs::MediaIO& channel)
{
    std::cout << "channel " << channel.Id().Value() << ", \"" << channel.Name() << "\"\n";
    if (const auto* recorder = dynamic_cast<const MediaIOs::MediaInput*>(&channel))
    {
        std::cout << "  " << ToString(recorder->RecordingStatus()) << " at " << recorder->LastTodTimecode() << ", "
                  << recorder->RemainingCapacity().Nanoseconds() / 1000000000 << " s left\n";
    }
    else if (const auto* player = dynamic_cast<const MediaIOs::MediaOutput*>(&channel))
    {
        std::cout << "  " << ToString(player->PlayingStatus()) << " at " << player->SpeedOnAir().ToPercent() << " %, "
                  << player->RemainingTime().Nanoseconds() / 1000000 << " ms left\n";
        if (const auto* in = dynamic_cast<const MediaIOs::BoundaryAbsolute*>(player->InBoundary().get()))
            std::cout << "  from " << in->Timepoint() << " ns\n";
    }
}

} // namespace

int main(int argc, char** argv)
{
    std::ifstream file(argc == 2 ? argv[1] : "");
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};

    Json::Value document;
    if (const auto result = ParseText(text, document); !result)
    {
        std::cout << result.Position().line << ':' << result.Position().column << ": " << result.ErrorMessage() << '\n';
        return 1;
    }

    const auto findings = InspectDocument(document);
    for (const auto& finding : findings)
        std::cout << PositionOf(text, finding.offset).line << ": " << finding.pointer << ": " << finding.sentence
                  << '\n';
    if (FirstFatal(findings) != nullptr)
    {
        std::cout << "refused: reading it would end the process\n";
        return 1;
    }

    const auto channel = MakeChannel(document);
    if (channel == nullptr)
    {
        std::cout << "refused: no channel\n";
        return 1;
    }
    if (const auto result = Serialization::MediaIOs::Json::JsonToMediaIOConverter().To(document, *channel); !result)
    {
        std::cout << "failed: " << result.ErrorMessage() << '\n';
        return 1;
    }
    Print(*channel);
}
