#pragma once

// jsoncpp does not mark its classes as visible to its users. Without this, a library with hidden visibility would hide
// the type information of every converter from or to `Json::Value` as well.
#pragma GCC visibility push(default)
#include <json/value.h>
#pragma GCC visibility pop

namespace Qiv::Common::Serialization::Json
{

/// What a reader reads: a parsed JSON value.
using JsonObject = ::Json::Value;

} // namespace Qiv::Common::Serialization::Json
