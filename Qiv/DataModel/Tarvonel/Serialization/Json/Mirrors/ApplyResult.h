#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Json/DocumentKind.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Effect.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextResult.h>

#include <optional>
#include <string>
#include <utility>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
{

/// What a mirror reports of a document: what it has done, or why it has done nothing, with the place in the text.
class [[nodiscard]] ApplyResult : public TextResult
{
public:
    ApplyResult(DocumentKind kind, std::string id, Mirrors::Effect effect)
        : kind_(kind), id_(std::move(id)), effect_(effect)
    {
    }
    /// A refusal, with the kind and the identifier as far as the document tells them.
    ApplyResult(TextResult failure, std::optional<DocumentKind> kind, std::string id)
        : TextResult(std::move(failure)), kind_(kind), id_(std::move(id)), effect_(Effect::Refused)
    {
    }

    /// Always there when the document has been applied: a node or a channel.
    std::optional<DocumentKind> Kind() const noexcept { return kind_; }
    const std::string& Id() const noexcept { return id_; }
    Mirrors::Effect Effect() const noexcept { return effect_; }

private:
    std::optional<DocumentKind> kind_;
    std::string id_;
    Mirrors::Effect effect_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Mirrors
