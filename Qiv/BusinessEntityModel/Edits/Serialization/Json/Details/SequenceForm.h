#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>

namespace Qiv::BusinessEntityModel::Edits::Serialization::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// An edit sequence.
struct SequenceForm : JsonForm<SequenceForm>
{
    static constexpr std::string_view tag = "Sequence";
    static constexpr const char* emptyMessage = "Sequence is empty";

    static constexpr Member id{"id", JsonType::Text};
    static constexpr Member name{"name", JsonType::Text};

    static constexpr auto members = ListOf(type, id, name);
};

} // namespace Qiv::BusinessEntityModel::Edits::Serialization::Json::Details
