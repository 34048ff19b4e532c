#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToBoundaryConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToMediaIOConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSequenceOutputConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSpeedConverter.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Nodes/Json/JsonToNodeConverter.h>

#include <memory>
#include <stdexcept>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

using namespace Tarvonel::MediaIOs;
using namespace Serialization::MediaIOs::Json;
using Nodes::Json::JsonToNodeConverter;
using Tarvonel::Nodes::Node;

namespace
{

// Reads a channel of one kind by the reader of both, so that copies are made of the whole channel.
template <typename Channel>
class KindReader : public FromJsonConverter<Channel>
{
public:
    using FromJsonConverter<Channel>::To;
    Result To(const JsonObject& json, Channel& channel) const override
    {
        return JsonToMediaIOConverter().To(json, channel);
    }
};

} // namespace

std::unique_ptr<MediaIO> IndependentCopy(const MediaIO& channel)
{
    switch (channel.GetMode())
    {
    case MediaIO::Mode::Input:
        return std::make_unique<MediaInput>(IndependentCopy(static_cast<const MediaInput&>(channel)));
    case MediaIO::Mode::Output:
        return std::make_unique<MediaOutput>(IndependentCopy(static_cast<const MediaOutput&>(channel)));
    }
    throw std::invalid_argument("Unsupported MediaIO type - should be MediaInput or MediaOutput");
}

Result MergeWhole(const JsonObject& json, MediaIO& channel)
{
    return channel.GetMode() == MediaIO::Mode::Input
               ? MergeWhole(KindReader<MediaInput>(), json, static_cast<MediaInput&>(channel))
               : MergeWhole(KindReader<MediaOutput>(), json, static_cast<MediaOutput&>(channel));
}

Result ReadSnapshot(const JsonObject& json, MediaIO& channel)
{
    return channel.GetMode() == MediaIO::Mode::Input
               ? ReadSnapshot(KindReader<MediaInput>(), json, static_cast<MediaInput&>(channel))
               : ReadSnapshot(KindReader<MediaOutput>(), json, static_cast<MediaOutput&>(channel));
}

Result MergeWhole(const JsonObject& json, SequenceOutput& sequenceOutput)
{
    return MergeWhole(JsonToSequenceOutputConverter(), json, sequenceOutput);
}

Result ReadSnapshot(const JsonObject& json, SequenceOutput& sequenceOutput)
{
    return ReadSnapshot(JsonToSequenceOutputConverter(), json, sequenceOutput);
}

Result MergeWhole(const JsonObject& json, Speed& speed)
{
    return MergeWhole(JsonToSpeedConverter(), json, speed);
}

Result ReadSnapshot(const JsonObject& json, Speed& speed)
{
    return ReadSnapshot(JsonToSpeedConverter(), json, speed);
}

Result MergeWhole(const JsonObject& json, Node& node)
{
    return ReadSnapshot(json, node);
}

Result ReadSnapshot(const JsonObject& json, Node& node)
{
    return ReadSnapshot(JsonToNodeConverter(), json, node);
}

Result MergeWhole(const JsonObject& json, std::unique_ptr<Boundary>& boundary)
{
    return ReadSnapshot(json, boundary);
}

Result ReadSnapshot(const JsonObject& json, std::unique_ptr<Boundary>& boundary)
{
    return ReadSnapshot(JsonToBoundaryConverter(), json, boundary);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
