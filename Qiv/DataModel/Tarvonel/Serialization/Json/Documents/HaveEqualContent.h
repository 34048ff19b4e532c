#pragma once

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/Write.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

/// Whether two entities say the same: whether the documents that are written of them are the same text. Any two
/// entities that `Write` takes can be compared, also channels by their base `MediaIO`.
///
/// That goes deeper than `==`, which compares references by their identifiers: an embedded media asset or sequence
/// counts with all its members, and whether there is one. Speeds count as they are written, so that 1/2 is not 2/4.
///
/// What writers leave out makes no difference, and what they change counts as changed: text behind a NUL; bytes that
/// are no UTF-8, each ill-formed sequence being written as U+FFFD; an asset or sequence on air to which a reference
/// with an empty identifier holds on (that of an asset block counts); an operator's negative index; metadata profiles
/// of foreign kinds; the numerator of an undefined speed on air; the denominator of a time code's rate. An empty
/// profile makes a difference in one place: a channel with no other has the member "metadata", and one with no profile
/// does not.
template <typename Left, typename Right>
bool HaveEqualContent(const Left& left, const Right& right)
{
    using Common::Serialization::Json::Stringer;

    Stringer leftText;
    Stringer rightText;
    const bool isLeftWhole = Write(left, leftText);
    const bool isRightWhole = Write(right, rightText);
    return isLeftWhole == isRightWhole && leftText.ToString() == rightText.ToString();
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
