#pragma once

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/DataModel/Tarvonel/MediaIOs/MediaIO.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Export.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/UpdateResult.h>

/// For a sender that keeps the state which it has sent last:
///
///     Stringer update;
///     if (const auto result = WriteUpdate(sent, channel, update); !result)
///         SendSnapshot(channel); // something cannot be expressed, for example a sequence that is gone
///     else if (result.HasChanges())
///         Send(update.ToString());
namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates
{

/// Writes the smallest document whose merge into `before` gives `after`, two states of one channel.
///
/// The document has "_type", "id" unless it is empty or a text that cannot be written (see below), and the members that
/// differ: nested objects whole, metadata by key, and of the two capacities those that bring about both. States differ
/// when their documents do, see HaveEqualContent. What has been cleared is written as the value that clears it where
/// readers take one: an empty text, "NotSet", a duration of zero, the texts of the empty time code and time point, an
/// empty reference or boundary, the speed 0/0, a negative operator index. A time code without date goes out in its
/// clock form, "10:00:00:00@25", unlike in a snapshot. None of the members can be left out.
///
/// Not all that channels can hold can be brought about by merging. What cannot is left out and listed in the result:
///
/// - a sequence, a metadata key or profile that is gone, a server identifier of the operator that is gone or is no
///   positive multiple of 10
/// - texts with a NUL, at which writers cut, or that are not well-formed UTF-8
/// - values that are no enumerators, time codes without a text that is read back as it is, relative boundaries without
///   a relative origin
/// - references whose identifier is not that of their object
/// - metadata keys with a dot, names that begin with the reserved "qiv.peloperator", profiles under another name than
///   their own, a new profile without keys, a profile of another kind than before
///
/// Refused, with nothing written: channels of different kinds, and channels with different identifiers. Throws what the
/// Stringer throws where no value may stand, and std::bad_alloc, save inside of a speed or a boundary, whose writers
/// are declared not to throw; what was opened is closed then. Several threads may compare the same states.
QIV_DATAMODEL_TARVONEL_SERIALIZATION_EXPORT UpdateResult WriteUpdate(const Tarvonel::MediaIOs::MediaIO& before,
                                                                     const Tarvonel::MediaIOs::MediaIO& after,
                                                                     Common::Serialization::Json::Stringer& stringer);

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates
