#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToBoundaryConverter.h>

#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/Details/Readers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using Tarvonel::MediaIOs::Boundary;

JsonToBoundaryConverter::~JsonToBoundaryConverter() = default;

Result JsonToBoundaryConverter::To(const JsonObject& json, std::unique_ptr<Boundary>& boundary) const noexcept
{
    return Details::ReadBoundary(json, boundary);
}

Result JsonToBoundaryConverter::Append(const JsonObject& json, std::unique_ptr<Boundary>& boundary) const noexcept
{
    return Details::AppendBoundary(json, boundary);
}

Result JsonToBoundaryConverter::AppendBoundaryAbsolute(const JsonObject& json,
                                                       std::unique_ptr<Boundary>& boundary) const noexcept
{
    return Details::AppendBoundaryAbsolute(json, boundary);
}

Result JsonToBoundaryConverter::AppendBoundaryRelative(const JsonObject& json,
                                                       std::unique_ptr<Boundary>& boundary) const noexcept
{
    return Details::AppendBoundaryRelative(json, boundary);
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
