#pragma once

#include <Qiv/DataModel/Tarvonel/Export.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/Speed.h>

#include <string>

namespace Qiv::DataModel::Tarvonel::MediaIOs::Parser
{

/// Reads the text form that SpeedFormatter writes: "numerator/denominator", each in decimal and within its 32-bit
/// range, only the numerator with a minus sign, nothing before, between or after. A derived parser may read another
/// form. Parsing changes nothing, so that one parser serves several threads.
class QIV_DATAMODEL_TARVONEL_EXPORT SpeedParser
{
public:
    virtual ~SpeedParser();

    /// The speed with the two fields of the text, not reduced.
    ///
    /// @throws std::invalid_argument when the text is not of the form, or a number is out of range
    virtual Speed Parse(const std::string& text) const;

    /// True for the texts that Parse takes.
    virtual bool IsStringFormatValid(const std::string& text) const;
};

} // namespace Qiv::DataModel::Tarvonel::MediaIOs::Parser
