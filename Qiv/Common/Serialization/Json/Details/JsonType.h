#pragma once

namespace Qiv::Common::Serialization::Json::Details
{

/// What a reader asks a member of an object to be; any other value is skipped.
enum class JsonType
{
    Text,
    Integer, ///< a whole number of 32 bits
    Boolean,
    Array,
    Object,
    Nanoseconds, ///< a text or a whole number of 64 bits
    Any,         ///< anything but null
};

} // namespace Qiv::Common::Serialization::Json::Details
