#pragma once

#include <Qiv/Common/Serialization/Json/Details/JsonForm.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

using Common::Serialization::Json::Details::JsonForm;
using Common::Serialization::Json::Details::JsonType;

/// A boundary of either kind.
struct BoundaryForm : JsonForm<BoundaryForm>
{
    static constexpr std::string_view absoluteTag = "BoundaryAbsolute";
    static constexpr std::string_view relativeTag = "BoundaryRelative";
    static constexpr const char* emptyMessage = "Boundary is empty";
    static constexpr const char* invalidTypeMessage = "Invalid _type";
    static constexpr const char* badOriginMessage = "Bad origin for BoundaryRelative";

    static constexpr Member timepoint{"timepoint", JsonType::Any};
    static constexpr auto absolute = ListOf(timepoint);

    static constexpr Member origin{"origin", JsonType::Text};
    static constexpr Member offset{"offset", JsonType::Integer};
    static constexpr auto relative = ListOf(origin, offset);

    static constexpr auto members = Joined(ListOf(type), absolute, relative);
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
