// Fills a player channel and writes it, compact and indented.
#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>

#include <iostream>
#include <memory>

using namespace Qiv::BusinessEntityModel::BaseTypes;
using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using namespace Qiv::TimePoints;
using Qiv::Common::Serialization::Json::Stringer;
using Qiv::DataModel::MediaAssets::MediaAsset;
using Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::MediaIOToJsonConverter;

int main()
{
    MediaOutput player;
    player.Id(Identifier("play-1"));
    player.Name("Replay A");
    player.MediaAssetOnAir(SharedReference<MediaAsset>(Identifier("clip-117")));
    player.PlayingStatus(PlayingStatus::Playing);
    player.SpeedOnAir(Speed(1, 2));
    player.GlobalLoopMode(PlayingLoopMode::Bounce);
    Duration remaining = Duration::FromMilliseconds(6480);
    player.RemainingTime(remaining);
    player.TodTimecodeOnAir(TimeCode(2016, 3, 21, 14, 5, 1, 11, Rate(30), true));
    player.InBoundary(std::make_unique<BoundaryAbsolute>(TimePoint(1458569098000000000)));
    player.OutBoundary(std::make_unique<BoundaryRelative>(BoundaryOrigin::RelativeToOppositeMediaBoundary, 250));

    const auto notes = std::make_shared<GenericMetadataProfile>(FullyQualifiedName("production.replay"));
    notes->Set("angle", "reverse");
    player.Metadata().Set(notes);

    const MediaIOToJsonConverter writer;
    Stringer compact;
    Stringer indented = Stringer::PrettyStringer();
    for (auto* const out : {&compact, &indented})
    {
        if (const auto result = writer.To(player, *out); !result)
        {
            std::cout << "failed: " << result.ErrorMessage() << '\n';
            return 1;
        }
        std::cout << out->ToString() << '\n';
    }
}
