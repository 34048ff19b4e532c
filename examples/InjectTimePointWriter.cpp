// Writes channels with a time point writer of one's own, and shows where it is used.
#include <Qiv/DataModel/Tarvonel/MediaIOs/BoundaryAbsolute.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/MediaIOToJsonConverter.h>

#include <iostream>
#include <memory>
#include <string>

using namespace Qiv::DataModel::Tarvonel::MediaIOs;
using namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json;
using Qiv::TimePoints::TimePoint;

namespace
{

/// Writes a time point as whole milliseconds in a plain text, "1458569109680". Exactly one value for each call, and
/// nothing is thrown: the writers that call it are declared not to throw.
class MillisecondsWriter : public ToJsonConverter<TimePoint>
{
public:
    using ToJsonConverter::To;
    Result To(const TimePoint& timePoint, Stringer& stringer) const override
    {
        stringer.Value(std::to_string(timePoint.Nanoseconds() / 1000000));
        return {};
    }
};

} // namespace

int main()
{
    const MediaIOToJsonConverter writer(std::make_shared<MillisecondsWriter>());

    MediaInput recorder;
    recorder.LastTimePoint(TimePoint(1458569109680000000));

    MediaOutput player;
    player.CurrentTimePointOnAir(TimePoint(1458569101360000000)); // keeps the default form
    player.InBoundary(std::make_unique<BoundaryAbsolute>(TimePoint(1458569098000000000)));
    player.OutBoundary(std::make_unique<BoundaryAbsolute>(TimePoint(1458569104480000000))); // keeps it too

    Stringer out;
    if (writer.To(recorder, out) && writer.To(player, out))
        std::cout << out.ToString() << '\n';
}
