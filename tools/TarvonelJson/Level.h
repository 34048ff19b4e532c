#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Json/FindingKind.h>

namespace TarvonelJson
{

/// How much a finding matters, each level with those behind it.
enum class Level
{
    Any,     ///< also what is known and ignored
    Skipped, ///< a member is skipped or replaced by a default
    Failure, ///< readers fail
    Fatal,   ///< readers end the process
    NotJson, ///< nothing can read it
};

constexpr Level LevelOf(Qiv::DataModel::Tarvonel::Serialization::Json::FindingKind kind) noexcept
{
    using Qiv::DataModel::Tarvonel::Serialization::Json::FindingKind;
    switch (kind)
    {
    case FindingKind::Ignored:
        return Level::Any;
    case FindingKind::Failure:
        return Level::Failure;
    case FindingKind::EndsProcess:
        return Level::Fatal;
    case FindingKind::UnknownMember:
    case FindingKind::WrongType:
    case FindingKind::InvalidValue:
    case FindingKind::MissingMember:
        break;
    }
    return Level::Skipped;
}

} // namespace TarvonelJson
