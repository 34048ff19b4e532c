#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Json/FindingKind.h>

#include <cstddef>
#include <string>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// One thing that an integrator should know about a document.
struct Finding
{
    /// The value that it is about, as an RFC 6901 pointer: "" is the document, "/speedOnAir/numerator" a member. Of a
    /// member that is missing, the object that lacks it.
    std::string pointer;

    FindingKind kind = FindingKind::UnknownMember;

    /// An English sentence without full stop that says what is wrong and what the reader makes of it, in one line of
    /// printable text whatever the document holds: "10:00" is no time code; it is skipped
    std::string sentence;

    /// Of a `Failure`, the text with which the reader fails; of an `EndsProcess`, that of the exception which nobody
    /// can catch. Otherwise empty.
    std::string readerMessage;

    /// Where the value starts in the text that it was parsed from, in bytes; 0 for a value that was never text.
    std::ptrdiff_t offset = 0;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
