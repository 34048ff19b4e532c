#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/Omission.h>

#include <string>
#include <utility>
#include <vector>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates
{

/// What `WriteUpdate` reports.
class [[nodiscard]] UpdateResult
{
public:
    /// A refusal: the two states are not of one channel.
    explicit UpdateResult(std::string errorMessage) : errorMessage_(std::move(errorMessage)) {}
    UpdateResult(bool hasChanges, std::vector<Omission> omissions)
        : hasChanges_(hasChanges), omissions_(std::move(omissions))
    {
    }

    /// True when merging the update gives the later state. Otherwise a snapshot is needed.
    explicit operator bool() const noexcept { return errorMessage_.empty() && omissions_.empty(); }

    /// Why nothing has been written; empty when an update has.
    const std::string& ErrorMessage() const noexcept { return errorMessage_; }

    /// Whether the states differ at all. Without changes, and without omissions then, the update has "_type" and "id"
    /// only and there is nothing to send.
    bool HasChanges() const noexcept { return hasChanges_; }

    /// The differences that the update does not have, since merging cannot bring them about; in the order of the
    /// document's members.
    const std::vector<Omission>& Omissions() const& noexcept { return omissions_; }
    std::vector<Omission> Omissions() && noexcept { return std::move(omissions_); }

private:
    std::string errorMessage_;
    bool hasChanges_ = false;
    std::vector<Omission> omissions_;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates
