#pragma once

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/Omission.h>

#include <initializer_list>
#include <string_view>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates::Details
{

/// An update under way: what has been written, and what could not be.
struct Update
{
    /// Notes a difference that the update cannot have, at the keys on the way to it.
    void Omit(std::initializer_list<std::string_view> path, std::string_view sentence);

    Common::Serialization::Json::Stringer& stringer;
    bool hasChanges = false;
    std::vector<Omission> omissions{};
};

/// Why a text does not come back as it is when it has been written; null when it does.
const char* ObstacleOfText(std::string_view text);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates::Details
