#pragma once

#include <Qiv/DataModel/Tarvonel/Export.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>

#include <string>

namespace Qiv::DataModel::Tarvonel::MediaIOs::Formatter
{

/// Writes the two fields of a speed in decimal, as they are: "-3/2", and "0/0" for the undefined speed. A derived
/// formatter may write another form. Formatting changes nothing, so that one formatter serves several threads.
class QIV_DATAMODEL_TARVONEL_EXPORT SpeedFormatter
{
public:
    virtual ~SpeedFormatter();

    virtual std::string Format(const Speed& speed) const;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs::Formatter
