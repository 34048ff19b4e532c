#pragma once

#include <string>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates
{

/// A difference between two states of a channel that no update can express.
struct Omission
{
    /// What differs, as an RFC 6901 pointer into the channel's document: "/sequence", or "/metadata/production.lens"
    /// for a key of the metadata. A metadata profile as such, for example one without keys, is named in place of a key.
    std::string pointer;

    /// An English sentence without full stop that says why merging cannot bring it about, in one line.
    std::string sentence;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates
