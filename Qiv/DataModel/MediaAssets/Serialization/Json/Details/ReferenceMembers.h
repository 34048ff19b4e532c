#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>

namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// What the forms of all references have in common.
template <typename TForm>
struct ReferenceMembers : JsonForm<TForm>
{
    static constexpr const char* badTypeMessage = "Bad _type";
    static constexpr const char* badFormatMessage = "Bad format";

    static constexpr typename JsonForm<TForm>::Member id{"id", JsonType::Any};
};

/// A reference whose tag and key of the embedded object only its converter knows.
struct AnyReferenceForm : ReferenceMembers<AnyReferenceForm>
{
    static constexpr auto members = ListOf(type, id);
};

} // namespace Qiv::DataModel::MediaAssets::Serialization::Json::Details
