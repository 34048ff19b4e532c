#pragma once

#include <string>
#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
{

/// The RFC 6901 pointer to a member or an element: the keys on the way to it, outermost first.
template <typename Keys>
std::string PointerTo(const Keys& keys)
{
    std::string pointer;
    for (const std::string_view key : keys)
    {
        pointer += '/';
        for (const char character : key)
        {
            if (character == '~')
                pointer += "~0";
            else if (character == '/')
                pointer += "~1";
            else
                pointer += character;
        }
    }
    return pointer;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Details
