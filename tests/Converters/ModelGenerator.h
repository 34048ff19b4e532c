#pragma once

#include "Conversions.h"

#include <Qiv/BusinessEntityModel/BaseTypes/GenericMetadataProfile.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryRelative.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace Qiv::Tests
{

/// Makes entities of the whole model, the same ones for the same seed: any part may be empty, texts hold quotes,
/// control characters and UTF-8 of every length, numbers lie at their limits. Every entity survives writing and
/// reading: it holds nothing that the JSON form leaves out or refuses, such as a time code without date.
class ModelGenerator
{
public:
    explicit ModelGenerator(std::uint32_t seed) : random_(seed) {}

    /// A number below `limit`.
    std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_()) % limit; }
    bool Chance(std::uint32_t oneIn = 2) { return Below(oneIn) == 0; }

    /// A number of any size, often at a limit.
    std::int64_t Number64()
    {
        const std::int64_t numbers[] = {INT64_MIN + Below(3), INT64_MAX - Below(3), std::int64_t{Below(3)} - 1,
                                        static_cast<std::int64_t>(random_() >> Below(64))};
        return numbers[Below(4)];
    }
    std::int32_t Number32() { return static_cast<std::int32_t>(Number64()); }

    /// Well-formed UTF-8 without NUL and without dot; one in four is empty.
    std::string Text()
    {
        static const auto pieces =
            Parse(R"(["a", "Z", "0", " ", "\"", "\\", "/", "{", "\n", "\t", "\u0001", "\u001f", "\b", "\u007f",
                      "\u0080", "\u00e9", "\u20ac", "\uffff", "Camera", "\ud83c\udfa5", "\udbff\udfff"])");
        std::string text;
        for (auto count = Chance(4) ? 0 : Below(Chance(20) ? 300 : 12); count > 0; --count)
            text += pieces[Below(pieces.size())].asString();
        return text;
    }

    TimePoint MakeTimePoint() { return Chance(4) ? TimePoint::Empty() : TimePoint(Number64()); }

    /// A time code with date that its text can hold.
    TimeCode MakeTimeCode()
    {
        static constexpr std::int32_t rates[] = {1, 24, 25, 30, 48, 50, 60, 100, 120, INT32_MAX};
        const auto rate = rates[Below(std::size(rates))];
        const bool isDrop = (rate == 30 || rate == 60) && Chance();
        const auto field = [this](std::int32_t limit)
        { return static_cast<std::int32_t>(Chance(4) ? 0 : Below(static_cast<std::uint32_t>(limit))); };
        const auto second = field(60);
        auto frame = field(std::min(rate, 100));
        if (isDrop && second == 0)
            frame = std::max(frame, 4);
        // A rate beyond all others, but early enough for 64 bits.
        const auto year = rate == INT32_MAX ? 1900 : 1900 + field(362);
        return {year,   1 + field(12), 1 + field(28),          field(24), field(60),
                second, frame,         TimePoints::Rate(rate), isDrop};
    }

    MediaAsset MakeMediaAsset()
    {
        auto asset = MakeNamed<MediaAsset>();
        asset.InPoint(MakeTimePoint());
        asset.OutPoint(MakeTimePoint());
        return asset;
    }

    Speed MakeSpeed() { return {Number32(), static_cast<std::uint32_t>(Number64())}; }

    std::unique_ptr<Boundary> MakeBoundary()
    {
        if (Chance())
            return std::make_unique<BoundaryAbsolute>(MakeTimePoint());
        return std::make_unique<BoundaryRelative>(static_cast<BoundaryOrigin>(1 + Below(3)), Number32());
    }

    SequenceOutput MakeSequenceOutput()
    {
        const auto block = [this]
        {
            SequenceOutput::AssetBlockOutput made;
            made.Id(Text());
            made.MediaAssetRef(MakeReference(MakeMediaAsset()));
            return made;
        };
        auto sequence = MakeReference(MakeNamed<Sequence>());
        SequenceOutput output;
        output.SequenceOnAir(sequence);
        output.AssetBlockOnAir(block());
        if (Chance())
            output.NextAssetBlockOnAir(block());
        output.EditMode(Chance());
        return output;
    }

    MediaInput MakeMediaInput()
    {
        MediaInput channel;
        FillCommon(channel);
        channel.RecordingStatus(static_cast<RecordingStatus>(Below(3)));
        channel.LastTimePoint(MakeTimePoint());
        channel.LastTodTimecode(MakeTimeCode());
        channel.LastUserTimecode(MakeTimeCode());
        channel.PrimaryTimecodeType(static_cast<TimecodePrimary>(Below(3)));
        Duration remaining(Number64());
        channel.TotalCapacity(Duration(Number64()));
        channel.RemainingCapacity(remaining);
        return channel;
    }

    MediaOutput MakeMediaOutput()
    {
        MediaOutput channel;
        FillCommon(channel);
        channel.PlayingStatus(static_cast<PlayingStatus>(Below(6)));
        channel.SpeedOnAir(MakeSpeed());
        channel.GlobalLoopMode(static_cast<PlayingLoopMode>(Below(4)));
        Duration remaining(Number64());
        channel.RemainingTime(remaining);
        channel.CurrentTimePointOnAir(MakeTimePoint());
        channel.TodTimecodeOnAir(MakeTimeCode());
        channel.UserTimecodeOnAir(MakeTimeCode());
        channel.PrimaryTimecodeType(static_cast<TimecodePrimary>(Below(3)));
        if (Chance())
            channel.Sequence(MakeSequenceOutput());
        channel.InBoundary(MakeBoundary());
        channel.OutBoundary(MakeBoundary());
        return channel;
    }

    Node MakeNode()
    {
        std::vector<std::string> addresses(Below(4));
        std::generate(addresses.begin(), addresses.end(), [this] { return Text(); });
        const std::string texts[] = {Text(), Text(), Text(), Text(), Text(), Text()};
        return {texts[0], Number32(), texts[1], texts[2], addresses, texts[3], texts[4], texts[5]};
    }

private:
    template <typename Entity>
    Entity MakeNamed()
    {
        Entity entity;
        entity.Id(Text());
        entity.Name(Text());
        return entity;
    }

    template <typename Entity>
    SharedReference<Entity> MakeReference(const Entity& entity)
    {
        return Chance() ? SharedReference<Entity>(Text()) : std::make_shared<Entity>(entity);
    }

    void FillCommon(MediaIO& channel)
    {
        channel.Id(Text());
        channel.Name(Text());
        channel.MediaAssetOnAir(MakeReference(MakeMediaAsset()));
        if (Chance())
        {
            const auto profile = std::make_shared<PelOperatorMetadataProfile>();
            profile->ServerId(static_cast<std::int32_t>(Below(1000)) * 10);
            profile->Index(Number32() & INT32_MAX);
            channel.Metadata().Set(profile);
        }
        for (auto count = Below(3); count > 0; --count)
        {
            const auto name = Chance() ? Text() : Text() + "." + Text();
            auto profile = std::make_shared<GenericMetadataProfile>(FullyQualifiedName(name));
            for (auto keys = 1 + Below(3); keys > 0; --keys)
                profile->Set(Text(), Text());
            channel.Metadata().Set(profile);
        }
    }

    std::mt19937_64 random_;
};

} // namespace Qiv::Tests
