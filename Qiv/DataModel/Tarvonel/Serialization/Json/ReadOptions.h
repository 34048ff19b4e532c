#pragma once

#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Finding.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/FindingKinds.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextLimits.h>

#include <cstddef>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// What a caller asks of a document beyond what its reader does:
///
///     ReadOptions options;
///     options.refuse = FindingKinds::All(); // nothing may be lost
///     options.expectedId = channel.Id();    // an update of another channel would rename this one
///     const auto result = MergeText(text, channel, options);
///
/// A document that is refused leaves the target as it was. Without `refuse` and `findings` nothing is inspected but
/// documents that the reader fails for.
struct ReadOptions
{
    /// What a text may demand; nothing is asked of a `Json::Value`.
    TextLimits limits;

    /// Findings for which the document is refused, told by the sentence of the first of them. Readers pass over all
    /// but `Failure` and `EndsProcess`, which are refused anyway: a failure that comes before is told instead, by the
    /// reader's own text. A document with `mostFindings` (InspectDocument.h) or more is refused, too.
    FindingKinds refuse;

    /// The identifier that the document of a channel or a node may have. Another one is refused; none, or an empty one,
    /// is not another, and neither is any when this is empty.
    BusinessEntityModel::BaseTypes::Identifier expectedId;

    /// Where to put what `InspectDocument` finds, whether the document is refused or not; null for nowhere. What stood
    /// there goes. Of a text that is no JSON nothing is found.
    std::vector<Finding>* findings = nullptr;
    /// How many of them are put there at most, the first ones in the order of reading.
    std::size_t maximumFindings = 1000;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
