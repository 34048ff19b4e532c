#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>

#include <string_view>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// What an inspection found. Readers pass silently over all but the last two.
///
/// An `InvalidValue` is a text that no enumerator, time code or duration has; a number out of range, or with something
/// behind it; a total capacity below the remaining one; another "_type" than that of an object which is skipped for it;
/// an identifier that is no text; and what is read as it stands, but not written back so: a text or a metadata key with
/// a NUL, a negative operator index, a speed on air without denominator, an object on air without identifier.
enum class FindingKind
{
    UnknownMember, ///< nothing reads a member of this name here
    Ignored,       ///< the member is known, but in this place or form nothing is taken from it
    WrongType,     ///< null or a value of another JSON type than the member has; skipped
    InvalidValue,  ///< taken otherwise than it stands, or lost when it is written again; see the sentence
    MissingMember, ///< a required member is absent, for which the object around it is skipped
    Failure,       ///< makes the reader fail
    EndsProcess,   ///< makes the reader end the process through std::terminate
};

/// The name of the kind in small letters with hyphens, for example "unknown-member" and "ends-process".
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT std::string_view ToString(FindingKind kind) noexcept;

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
