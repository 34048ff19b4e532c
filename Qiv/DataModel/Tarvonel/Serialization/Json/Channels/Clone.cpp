#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/Clone.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Channels
{

std::unique_ptr<Tarvonel::MediaIOs::MediaIO> Clone(const Tarvonel::MediaIOs::MediaIO& channel)
{
    return IndependentCopy(channel);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Channels
