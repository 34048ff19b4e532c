#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/SameContent.h>

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/BoundaryToJsonConverter.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

using BusinessEntityModel::BaseTypes::Optional;
using BusinessEntityModel::BaseTypes::SharedReference;
using BusinessEntityModel::Edits::Sequence;
using Common::Serialization::Json::Stringer;
using MediaAssets::MediaAsset;
using Tarvonel::MediaIOs::Boundary;
using Tarvonel::MediaIOs::SequenceOutput;
using Tarvonel::MediaIOs::Speed;
using TimePoints::QivTimeCodeFormatter;
using TimePoints::TimeCode;

namespace
{

std::string Written(const Boundary& boundary)
{
    Stringer stringer;
    static_cast<void>(MediaIOs::Json::BoundaryToJsonConverter().To(boundary, stringer)); // {} is a text, too
    return stringer.ToString();
}

bool HaveSameMembers(const MediaAsset& left, const MediaAsset& right)
{
    return AreWrittenAlike(left.Id().Value(), right.Id().Value()) && AreSame(left.Name(), right.Name()) &&
           left.InPoint() == right.InPoint() && left.OutPoint() == right.OutPoint();
}

bool HaveSameMembers(const Sequence& left, const Sequence& right)
{
    return AreWrittenAlike(left.Id().Value(), right.Id().Value()) && AreSame(left.Name(), right.Name());
}

// As references that are always written.
template <typename Entity>
bool HaveSameMembers(const SharedReference<Entity>& left, const SharedReference<Entity>& right)
{
    if (!AreWrittenAlike(left.Id().Value(), right.Id().Value()))
        return false;
    const auto& leftObject = left.Pointer();
    const auto& rightObject = right.Pointer();
    if (leftObject == nullptr || rightObject == nullptr)
        return leftObject == rightObject;
    return leftObject == rightObject || HaveSameMembers(*leftObject, *rightObject);
}

template <typename Entity>
bool AreSameUnlessEmpty(const SharedReference<Entity>& left, const SharedReference<Entity>& right)
{
    return (left.Id().IsEmpty() && right.Id().IsEmpty()) ||
           (left.Id().IsEmpty() == right.Id().IsEmpty() && HaveSameMembers(left, right));
}

bool HaveSameMembers(const SequenceOutput::AssetBlockOutput& left, const SequenceOutput::AssetBlockOutput& right)
{
    return AreWrittenAlike(left.Id().Value(), right.Id().Value()) &&
           HaveSameMembers(left.MediaAssetRef(), right.MediaAssetRef());
}

} // namespace

bool AreWrittenAlike(const std::string& left, const std::string& right)
{
    // The characters of a text may differ where writers cut or replace them.
    return left == right || Stringer::ToEscapedString(left.c_str()) == Stringer::ToEscapedString(right.c_str());
}

bool AreSame(const std::string& left, const std::string& right)
{
    return left.empty() == right.empty() && AreWrittenAlike(left, right);
}

bool AreSame(const TimeCode& left, const TimeCode& right)
{
    if (left == right)
        return true;
    const bool differInSamplesAlone =
        left.HasDate() && right.HasDate() && left.Rate() == right.Rate() && left.IsDrop() == right.IsDrop();
    if (differInSamplesAlone || left.IsEmpty() || right.IsEmpty())
        return false;
    char leftText[QivTimeCodeFormatter::MaximumLength];
    char rightText[QivTimeCodeFormatter::MaximumLength];
    return QivTimeCodeFormatter::FormatTo(left, leftText) == QivTimeCodeFormatter::FormatTo(right, rightText);
}

bool AreSame(const Speed& left, const Speed& right)
{
    return (left.IsUndefined() && right.IsUndefined()) ||
           (left.Numerator() == right.Numerator() && left.Denominator() == right.Denominator());
}

bool AreSame(const std::unique_ptr<Boundary>& left, const std::unique_ptr<Boundary>& right)
{
    if (left->IsEmpty() || right->IsEmpty())
        return left->IsEmpty() && right->IsEmpty();
    return *left == *right || Written(*left) == Written(*right);
}

bool AreSame(const SharedReference<MediaAsset>& left, const SharedReference<MediaAsset>& right)
{
    return AreSameUnlessEmpty(left, right);
}

bool AreSame(const SharedReference<Sequence>& left, const SharedReference<Sequence>& right)
{
    return AreSameUnlessEmpty(left, right);
}

bool AreSame(const Optional<SequenceOutput>& left, const Optional<SequenceOutput>& right)
{
    if (!left.HasValue() || !right.HasValue())
        return left.HasValue() == right.HasValue();
    const auto& leftNext = left->NextAssetBlockOnAir();
    const auto& rightNext = right->NextAssetBlockOnAir();
    return AreSame(left->SequenceOnAir(), right->SequenceOnAir()) &&
           HaveSameMembers(left->AssetBlockOnAir(), right->AssetBlockOnAir()) &&
           leftNext.HasValue() == rightNext.HasValue() &&
           (!leftNext.HasValue() || HaveSameMembers(*leftNext, *rightNext)) && left->EditMode() == right->EditMode();
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
