#pragma once

#include <Qiv/DataModel/MediaAssets/Serialization/Json/Details/ReferenceMembers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::JsonType;
using MediaAssets::Serialization::Json::Details::ReferenceMembers;

/// A reference to an edit sequence.
struct SequenceReferenceForm : ReferenceMembers<SequenceReferenceForm>
{
    static constexpr std::string_view tag = "SequenceRef";

    static constexpr Member embedded{"sequence", JsonType::Object};

    static constexpr auto members = ListOf(type, id, embedded);
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
