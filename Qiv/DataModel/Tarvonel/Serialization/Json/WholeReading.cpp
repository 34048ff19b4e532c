#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaInput.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaOutput.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/ReadWhole.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/FatalValues.h>

#include <memory>
#include <stdexcept>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

using Common::Serialization::Result;
using Common::Serialization::Json::JsonObject;
using Serialization::MediaIOs::Json::Details::EndingTheProcess;
using Tarvonel::MediaIOs::MediaInput;
using Tarvonel::MediaIOs::MediaIO;
using Tarvonel::MediaIOs::MediaOutput;

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

Result MergeWhole(const JsonObject& json, ReadTarget target)
{
    return EndingTheProcess([&] { return Details::ReadWhole(json, target, Details::ReadMode::Merge); });
}

Result ReadSnapshot(const JsonObject& json, ReadTarget target)
{
    return EndingTheProcess([&] { return Details::ReadWhole(json, target, Details::ReadMode::Snapshot); });
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
