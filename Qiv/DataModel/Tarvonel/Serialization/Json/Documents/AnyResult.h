#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/AnyEntity.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextResult.h>

#include <optional>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

/// What reading a document of any kind gives: the entity, or a failure with its English text and its place.
class [[nodiscard]] AnyResult : public TextResult
{
public:
    AnyResult(AnyEntity entity) : entity_(std::move(entity)) {}
    /// `failure` must not be a success.
    AnyResult(TextResult failure) : TextResult(std::move(failure)) {}

    /// The entity; throws std::bad_optional_access after a failure.
    const AnyEntity& Entity() const& { return entity_.value(); }
    AnyEntity& Entity() & { return entity_.value(); }
    AnyEntity Entity() && { return std::move(entity_).value(); }

private:
    std::optional<AnyEntity> entity_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
